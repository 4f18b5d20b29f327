// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "project/ProjectListing.h"

#include "ProjectFixture.h"
#include "support/TestSupport.h"

#include <RkAlgorthm/RkAlgorthm.h>
#include <RkBaseUI/RkCityCategory.h>
#include <RkData/ReferenceSettings.h>
#include <RkData/RkData.h>

#include <QDir>
#include <QtTest>

#include <memory>

class tst_ProjectListing : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void currentUserId();
    void files();
    void record();
    void noRecord();
    void createOnNothing();
    void createOnAnEmptyFile();
    void createInAMissingFolder();
    void blocks();
    void blocksOfNoProject();
    void blocksOfNoFile();

private:
    std::unique_ptr<TestHome> m_home;
};

void tst_ProjectListing::init()
{
    m_home = std::make_unique<TestHome>();
}

void tst_ProjectListing::cleanup()
{
    ClearBlocks();
}

void tst_ProjectListing::currentUserId()
{
    QCOMPARE(ProjectListing::currentUserId(), QString());
    m_home->setCurrentUserId("user-7");
    QCOMPARE(ProjectListing::currentUserId(), QString("user-7"));
}

void tst_ProjectListing::files()
{
    const QString root = m_home->projectRoot();
    for (const char* file :
         {"a/a.proj", "a/b.proj", "a/c.txt", "b/deep/c.proj", "d.proj", "c/.proj"})
        QVERIFY(writeFile(root + file, "x"));
    QStringList found = ProjectListing::projectFiles(root);
    found.sort();
    QCOMPARE(found, QStringList({root + "a/a.proj", root + "a/b.proj"}));
    QCOMPARE(ProjectListing::projectFiles(root + "nowhere/"), QStringList());
}

void tst_ProjectListing::record()
{
    ProjectFixture fixture{"Hill"};
    fixture.imageData = "aGlsbA==";
    fixture.outlines = QStringList{squareAround(30.66, 104.07)};
    const QString file = fixture.write(m_home->projectRoot());
    const std::optional<ProjectRecord> record = ProjectListing::read(file, "user-1");
    QVERIFY(record.has_value());
    QCOMPARE(record->filePath, file);
    QCOMPARE(record->name, QString("Hill"));
    QCOMPARE(record->modified, fixture.modified);
    QCOMPARE(record->id, fixture.id);
    QCOMPARE(record->softwareVersion, QString("0.9.8"));
    QCOMPARE(record->imageData, fixture.imageData);
    QCOMPARE(record->places.value(0),
             RkCityCategory::instance().GetCityName(PointLatLng(30.66, 104.07)));
}

void tst_ProjectListing::noRecord()
{
    const QString file = ProjectFixture{"Hill"}.write(m_home->projectRoot());
    QVERIFY(!ProjectListing::read(file, "user-2").has_value());
    const QString missing = m_home->projectRoot() + "missing.proj";
    QVERIFY(!ProjectListing::read(missing, "user-1").has_value());
    QVERIFY2(!QFileInfo::exists(missing), "reading makes no file");
}

void tst_ProjectListing::createOnNothing()
{
    const QString file = m_home->projectRoot() + "a.b.proj";
    const std::optional<ProjectRecord> record = ProjectListing::create(file, "user-1");
    QVERIFY(record.has_value());
    QCOMPARE(record->name, QString("a.b"));
    QCOMPARE(record->size, QString("0B"));
    QCOMPARE(record->softwareVersion, VANTRELL_VERSION);
    QVERIFY(record->imageData.isEmpty());
    QVERIFY(record->places.isEmpty());
    const std::optional<ProjectRecord> again = ProjectListing::read(file, "user-1");
    QVERIFY(again.has_value());
    QCOMPARE(again->id, record->id);
}

void tst_ProjectListing::createOnAnEmptyFile()
{
    const QString file = m_home->projectRoot() + "empty.proj";
    QVERIFY(writeFile(file, QByteArray()));
    QVERIFY(!ProjectListing::read(file, "user-1").has_value());
    QVERIFY(ProjectListing::create(file, "user-1").has_value());
}

void tst_ProjectListing::createInAMissingFolder()
{
    QVERIFY(!ProjectListing::create(m_home->projectRoot() + "no/such.proj", "user-1").has_value());
}

void tst_ProjectListing::blocks()
{
    ProjectFixture fixture{"Hill"};
    fixture.outlines = QStringList{squareAround(30.66, 104.07), squareAround(24.48, 118.10)};
    const QString file = fixture.write(m_home->projectRoot());
    QVERIFY(runSql(file,
                   {"INSERT INTO " + SurveyAreaTableName
                    + " (project_id, survey_area_guid) VALUES ('id-of-Hill', NULL)"}));
    const std::optional<BlockPlaces> blocks =
        ProjectListing::loadBlocks(file, "id-of-Hill", VANTRELL_VERSION);
    QVERIFY(blocks.has_value());
    QCOMPARE(blocks->centres.size(), 2);
    QVERIFY(qAbs(blocks->centres[0].Lat() - 30.66) < 1e-6);
    QVERIFY(qAbs(blocks->centres[1].Lng() - 118.10) < 1e-6);
    const RkCityCategory& catalogue = RkCityCategory::instance();
    QCOMPARE(blocks->places.size(), 4);
    QCOMPARE(blocks->places[0], catalogue.GetCityName(PointLatLng(30.66, 104.07)));
    QCOMPARE(blocks->places[2], catalogue.GetCityName(PointLatLng(24.48, 118.10)));
    QVERIFY(CRkBlockManager::instance().GetBlock("a0"));
    QVERIFY(CRkBlockManager::instance().GetBlock("a1"));
    QVERIFY(!CRkBlockManager::instance().GetBlock(""));
}

void tst_ProjectListing::blocksOfNoProject()
{
    const QString file = ProjectFixture{"Hill"}.write(m_home->projectRoot());
    const std::optional<BlockPlaces> none =
        ProjectListing::loadBlocks(file, "another", VANTRELL_VERSION);
    QVERIFY(none.has_value());
    QVERIFY(none->centres.isEmpty() && none->places.isEmpty());
}

void tst_ProjectListing::blocksOfNoFile()
{
    QVERIFY(!ProjectListing::loadBlocks(m_home->path(), "x", VANTRELL_VERSION).has_value());
    const QString file = ProjectFixture{"Hill"}.write(m_home->projectRoot());
    QVERIFY(!ProjectListing::loadBlocks(file, "x' or '1'='1", VANTRELL_VERSION).has_value());
    QVERIFY(runSql(file,
                   {"DROP TABLE " + SurveyAreaTableName,
                    "CREATE VIEW " + SurveyAreaTableName
                        + " AS SELECT 'x' project_id, 'a' survey_area_guid, 'a' survey_area_name,"
                          " '' camera_type"}));
    QVERIFY(!ProjectListing::loadBlocks(file, "x", VANTRELL_VERSION).has_value());
}

QTEST_GUILESS_MAIN(tst_ProjectListing)
#include "tst_ProjectListing.moc"
