// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include <RkBaseUI/CRkNoflyApplyWgt.h>

#include "support/BoxAnswerer.h"
#include "support/Brackets.h"
#include "support/MessageLog.h"
#include "support/TestSupport.h"
#include "support/WindowWaits.h"
#include "widgets/AtScale.h"
#include "widgets/ExecAnd.h"
#include "widgets/KeyboardFocus.h"
#include "widgets/Render.h"

#include <RkData/ReferenceSettings.h>
#include <RkData/RkData.h>

#include <QDateTimeEdit>
#include <QFileDialog>
#include <QGridLayout>
#include <QHeaderView>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLineEdit>
#include <QMetaMethod>
#include <QPlainTextEdit>
#include <QProcess>
#include <QSignalSpy>
#include <QTableWidget>

namespace {

const QString title = QStringLiteral("Application Information");
const QString noDocument = QStringLiteral("Please select the application document.");
const QString noName = QStringLiteral("Please input the Authorization Name.");
const QString noDuration = QStringLiteral("Please input the invalid date time.");
const QString blockId = QStringLiteral("block-1");

template <typename T>
T* part(const QWidget& form, const char* name)
{
    return form.findChild<QWidget*>("CRknoFlyApplyWgt")->findChild<T*>(QLatin1String(name));
}

QTableWidget* table(const QWidget& form)
{
    return part<QTableWidget>(form, "m_pTblWgtCoord");
}

QDateTimeEdit* startEdit(const QWidget& form)
{
    return part<QDateTimeEdit>(form, "m_pDateStart");
}

QDateTimeEdit* endEdit(const QWidget& form)
{
    return part<QDateTimeEdit>(form, "m_pDateEnd");
}

QPushButton* okButton(const QWidget& form)
{
    return form.findChild<QPushButton*>("m_pBtnOK");
}

/// x latitude, y longitude.
void addBlock(const QList<QPointF>& outline)
{
    auto block = std::make_unique<CRkBlock>();
    block->SetBlockID(blockId);
    block->SetAnchor(outline);
    CRkBlockManager::instance().AddBlock(block.release());
}

/// Everything that the check asks for.
void fill(const QWidget& form, const QString& document = QStringLiteral("/a/permit.pdf"))
{
    part<QLineEdit>(form, "m_pEdtDocPath")->setText(document);
    part<QLineEdit>(form, "m_pEdtAuthName")->setText("Wang");
    startEdit(form)->setDateTime({{2026, 5, 1}, {8, 5, 9}});
    endEdit(form)->setDateTime({{2026, 12, 31}, {18, 0, 0}});
}

QJsonObject sent(const CRkNoflyApplyWgt& form)
{
    return QJsonDocument::fromJson(form.ComboUploadData()).object();
}

QStringList column(const QTableWidget& widget, int index)
{
    QStringList texts;
    for (int row = 0; row < widget.rowCount(); ++row)
        texts.append(widget.item(row, index)->text());
    return texts;
}

/// Each pixel another colour, so that every step of scaling shows.
QImage pattern(const QSize& size)
{
    QImage image(size, QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x)
            image.setPixel(x, y, qRgb(x % 256, y % 256, (x * y) % 256));
    }
    return image;
}

/// Answers the file dialog that `ClickedSelect` opens, and notes what it is like.
class FileChooser : public QObject
{
public:
    /// Cancels when the path is empty.
    explicit FileChooser(QString path)
        : m_path(std::move(path))
    {
        // That of the system is not of the toolkit's widgets.
        QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
        qApp->installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        auto* dialog = qobject_cast<QFileDialog*>(watched);
        if (dialog && event->type() == QEvent::Show)
            QTimer::singleShot(0, dialog, [this, dialog] { answer(*dialog); });
        return false;
    }

    int dialogs = 0;
    QString title;
    QStringList filters;
    QWidget* parent = nullptr;
    QFileDialog::FileMode mode = QFileDialog::AnyFile;

private:
    void answer(QFileDialog& dialog)
    {
        ++dialogs;
        title = dialog.windowTitle();
        filters = dialog.nameFilters();
        parent = dialog.parentWidget();
        mode = dialog.fileMode();
        if (m_path.isEmpty()) {
            dialog.reject();
            return;
        }
        dialog.findChild<QLineEdit*>("fileNameEdit")->setText(m_path);
        QMetaObject::invokeMethod(&dialog, "accept");
    }

    const QString m_path;
};

} // namespace

class tst_CRkNoflyApplyWgt : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void construction();
    void embedded();
    void labels_data();
    void labels();
    void headers();
    void arrangement();
    void metaObject();
    void textsAreOfTheClassContext();
    void accessibleNames();
    void tabOrder();
    void tabLeavesTableAndInstructions();
    void timesAreNow();

    void outline();
    void noOutline_data();
    void noOutline();
    void coordinatesCannotBeEdited();
    void manyCorners();

    void choosesTheDocument();
    void cancelledChoiceEmptiesThePath();

    void refuses_data();
    void refuses();
    void accepts();
    void acceptsAfterARefusal();
    void boxLook();
    void otherEnds();

    void noDocumentPathGivesNothing();
    void sendsWhatIsFilledIn();
    void area_data();
    void area();
    void documents_data();
    void documents();
    void unreadableDocuments_data();
    void unreadableDocuments();
    void documentOf100MB();

    void screenShot_data();
    void screenShot();
    void screenShotIsSharpAtEveryScale_data() { addScales(); }
    void screenShotIsSharpAtEveryScale();
    void screenShotIsSentWhole();
    void screenShotCanBeTakenAway();

private:
    TestHome m_home;
    MessageLog m_log;
};

void tst_CRkNoflyApplyWgt::init()
{
    ClearBlocks();
    m_log.start();
}

void tst_CRkNoflyApplyWgt::cleanup()
{
    QCOMPARE(m_log.stop(), QStringList());
}

void tst_CRkNoflyApplyWgt::construction()
{
    const CRkNoflyApplyWgt form({}, {}, nullptr);
    QCOMPARE(form.objectName(), QString("CRkBaseDialog"));
    QCOMPARE(form.windowTitle(), title);
    QCOMPARE(form.findChild<QLabel*>("m_pLalTitle")->text(), title);
    QVERIFY(form.isWindow());
    for (const char* name : {"m_pEdtDocPath", "m_pEdtAuthName", "m_pEdtContact", "m_pEdtCompany"})
        QCOMPARE(part<QLineEdit>(form, name)->text(), QString());
    QCOMPARE(part<QPushButton>(form, "m_pBtnDocSele")->text(), QString("..."));
    QCOMPARE(part<QPlainTextEdit>(form, "plainTextEdit")->toPlainText(), QString());
    QVERIFY(part<QLabel>(form, "label_pic")->pixmap(Qt::ReturnByValue).isNull());
    for (const char* button : {"m_pBtnOK", "m_pBtnCancel", "m_pBtnClose"})
        QVERIFY(!form.findChild<QWidget*>(button)->isHidden());

    const auto* content = form.findChild<QGridLayout*>("m_pContainsLayout");
    const QLayout* handedOver = content->itemAtPosition(1, 0)->layout();
    QVERIFY(handedOver);
    QCOMPARE(handedOver->itemAt(0)->widget(), form.findChild<QWidget*>("CRknoFlyApplyWgt"));
}

void tst_CRkNoflyApplyWgt::embedded()
{
    QWidget parent;
    auto* other = new QLineEdit(&parent);
    parent.show();
    QApplication::setActiveWindow(&parent);
    other->setFocus();
    CRkNoflyApplyWgt form({}, {}, &parent);
    QCOMPARE(form.parentWidget(), &parent);
    QCOMPARE(int(form.windowFlags()), 0x40800);
    form.show();
    QCOMPARE(parent.focusWidget(), other);
}

void tst_CRkNoflyApplyWgt::labels_data()
{
    QTest::addColumn<QByteArray>("field");
    QTest::addColumn<QString>("text");
    QTest::newRow("document") << QByteArray("m_pEdtDocPath") << "Authorization document:";
    QTest::newRow("name") << QByteArray("m_pEdtAuthName") << "Authorization Name:";
    QTest::newRow("contact") << QByteArray("m_pEdtContact") << "Contact mobile phone:";
    QTest::newRow("company") << QByteArray("m_pEdtCompany") << "Company:";
    QTest::newRow("start") << QByteArray("m_pDateStart") << "Start time:";
    QTest::newRow("end") << QByteArray("m_pDateEnd") << "End time:";
    QTest::newRow("coordinates") << QByteArray("m_pTblWgtCoord") << "Area coordinate:";
    QTest::newRow("instructions") << QByteArray("plainTextEdit") << "Apply for \ninstructions:";
}

void tst_CRkNoflyApplyWgt::labels()
{
    QFETCH(QByteArray, field);
    QFETCH(QString, text);
    const CRkNoflyApplyWgt form({}, {}, nullptr);
    QStringList texts;
    for (const QLabel* label : form.findChildren<QLabel*>()) {
        if (label->buddy() && label->buddy()->objectName() == QLatin1String(field))
            texts.append(label->text());
    }
    QCOMPARE(texts, QStringList(text));
}

void tst_CRkNoflyApplyWgt::headers()
{
    const CRkNoflyApplyWgt form({}, {}, nullptr);
    QCOMPARE(table(form)->columnCount(), 3);
    QCOMPARE(table(form)->horizontalHeaderItem(0)->text(), QString("Longitude"));
    QCOMPARE(table(form)->horizontalHeaderItem(1)->text(), QString("Latitude"));
    QCOMPARE(table(form)->horizontalHeaderItem(2)->text(), QString("Altitude"));
    QCOMPARE(startEdit(form)->displayFormat(), QString("yyyy/M/d H:mm:ss"));
    QCOMPARE(endEdit(form)->displayFormat(), QString("yyyy/M/d H:mm:ss"));
}

/// Labels and fields in two columns, the picture at their right, table and instructions across.
void tst_CRkNoflyApplyWgt::arrangement()
{
    CRkNoflyApplyWgt form({}, {}, nullptr);
    form.show();
    QVERIFY(comesOnScreen(&form));
    const auto* grid =
        qobject_cast<QGridLayout*>(form.findChild<QWidget*>("CRknoFlyApplyWgt")->layout());
    QVERIFY(grid);
    const QRect picture = part<QLabel>(form, "label_pic")->geometry();
    int below = 0;
    for (const char* name :
         {"m_pEdtAuthName", "m_pEdtContact", "m_pEdtCompany", "m_pDateStart", "m_pDateEnd"}) {
        const QRect field = part<QWidget>(form, name)->geometry();
        QVERIFY2(field.top() >= below, name);
        QVERIFY2(field.right() < picture.left(), name);
        below = field.bottom();
    }
    const QRect coordinates = table(form)->geometry();
    const QRect instructions = part<QWidget>(form, "plainTextEdit")->geometry();
    QVERIFY(coordinates.top() > picture.bottom());
    QVERIFY(instructions.top() > coordinates.bottom());
    QCOMPARE(coordinates.right(), picture.right());
    QCOMPARE(instructions.right(), picture.right());
    QStringList texts;
    for (const QLabel* label : form.findChildren<QLabel*>())
        texts.append(label->text());
    QVERIFY(texts.contains(QString::fromUtf8("Screen shots\xef\xbc\x9a")));
}

void tst_CRkNoflyApplyWgt::metaObject()
{
    const QMetaObject& meta = CRkNoflyApplyWgt::staticMetaObject;
    QCOMPARE(meta.superClass(), &CRkBaseDialog::staticMetaObject);
    QCOMPARE(meta.methodCount(), meta.methodOffset() + 2);
    const QMetaMethod accept = meta.method(meta.methodOffset());
    QCOMPARE(accept.methodSignature(), QByteArray("slotBtnAcceptClicked()"));
    QCOMPARE(accept.methodType(), QMetaMethod::Slot);
    const QMetaMethod select = meta.method(meta.methodOffset() + 1);
    QCOMPARE(select.methodSignature(), QByteArray("ClickedSelect()"));
    QCOMPARE(select.methodType(), QMetaMethod::Slot);
    QCOMPARE(select.access(), QMetaMethod::Private);
}

void tst_CRkNoflyApplyWgt::textsAreOfTheClassContext()
{
    Brackets brackets("CRkNoflyApplyWgt");
    QVERIFY(QCoreApplication::installTranslator(&brackets));
    addBlock({{30.5, 104}});
    const CRkNoflyApplyWgt form(blockId, {}, nullptr);
    QCOMPARE(form.windowTitle(), '[' + title + ']');
    int labels = 0;
    for (const QLabel* label : form.findChild<QWidget*>("CRknoFlyApplyWgt")
                                   ->findChildren<QLabel*>(QRegularExpression("^label[^_]"))) {
        QVERIFY2(label->text().startsWith('['), qPrintable(label->text()));
        ++labels;
    }
    QCOMPARE(labels, 9);
    QCOMPARE(table(form)->horizontalHeaderItem(2)->text(), QString("[Altitude]"));
    QCOMPARE(table(form)->item(0, 2)->text(), QString("N/A")); // It is sent.
    QCOMPARE(part<QPushButton>(form, "m_pBtnDocSele")->text(), QString("..."));

    FileChooser chooser{QString()};
    part<QPushButton>(form, "m_pBtnDocSele")->click();
    QCOMPARE(chooser.title, QString("[Apply file]"));

    const BoxAnswerer answerer;
    okButton(form)->click();
    fill(form);
    part<QLineEdit>(form, "m_pEdtAuthName")->clear();
    okButton(form)->click();
    fill(form);
    endEdit(form)->setDateTime(startEdit(form)->dateTime());
    okButton(form)->click();
    QStringList texts;
    for (const ShownBox& box : answerer.boxes) {
        QCOMPARE(box.title, '[' + title + ']');
        texts.append(box.text);
    }
    QCOMPARE(texts,
             QStringList({'[' + noDocument + ']', '[' + noName + ']', '[' + noDuration + ']'}));
}

void tst_CRkNoflyApplyWgt::accessibleNames()
{
    const CRkNoflyApplyWgt form({}, {}, nullptr);
    QVERIFY(!part<QPushButton>(form, "m_pBtnDocSele")->accessibleName().isEmpty());
    QVERIFY(!part<QLabel>(form, "label_pic")->accessibleName().isEmpty());
}

void tst_CRkNoflyApplyWgt::tabOrder()
{
    CRkNoflyApplyWgt form({}, {}, nullptr);
    const QStringList expected = {
        "m_pEdtDocPath", "m_pBtnDocSele", "m_pEdtAuthName", "m_pEdtContact", "m_pEdtCompany",
        "m_pDateStart",  "m_pDateEnd",    "m_pTblWgtCoord", "plainTextEdit", "m_pBtnOK",
        "m_pBtnCancel",  "m_pBtnClose",   "m_pEdtDocPath",
    };
    QCOMPARE(tabStops(form, expected.size()), expected);
    QVERIFY(okButton(form)->isDefault());
}

/// From the table and the instructions, which know the key themselves.
void tst_CRkNoflyApplyWgt::tabLeavesTableAndInstructions()
{
    addBlock({{30.5, 104}, {30.6, 105}});
    CRkNoflyApplyWgt form(blockId, {}, nullptr);
    form.show();
    QApplication::setActiveWindow(&form);
    QTRY_VERIFY(form.isActiveWindow());
    table(form)->setFocus();
    QTest::keyClick(table(form), Qt::Key_Tab);
    QCOMPARE(form.focusWidget()->objectName(), QString("plainTextEdit"));
    QTest::keyClick(form.focusWidget(), Qt::Key_Tab);
    QCOMPARE(form.focusWidget()->objectName(), QString("m_pBtnOK"));
}

void tst_CRkNoflyApplyWgt::timesAreNow()
{
    const QDateTime before = QDateTime::currentDateTime();
    const CRkNoflyApplyWgt form({}, {}, nullptr);
    const QDateTime after = QDateTime::currentDateTime();
    QVERIFY(startEdit(form)->dateTime() >= before && startEdit(form)->dateTime() <= after);
    QCOMPARE(endEdit(form)->dateTime(), startEdit(form)->dateTime());
}

void tst_CRkNoflyApplyWgt::outline()
{
    addBlock({{30.5, 104}, {30.6000004, 105.1234567}, {-1, -2}});
    const CRkNoflyApplyWgt form(blockId, {}, nullptr);
    QCOMPARE(column(*table(form), 0), QStringList({"104.000000", "105.123457", "-2.000000"}));
    QCOMPARE(column(*table(form), 1), QStringList({"30.500000", "30.600000", "-1.000000"}));
    QCOMPARE(column(*table(form), 2), QStringList({"N/A", "N/A", "N/A"}));
    for (int row = 0; row < 3; ++row)
        QCOMPARE(table(form)->rowHeight(row), 30);
    QVERIFY(!table(form)->verticalHeader()->stretchLastSection());
}

void tst_CRkNoflyApplyWgt::noOutline_data()
{
    QTest::addColumn<QString>("id");
    QTest::newRow("unknown block") << "other";
    QTest::newRow("no id") << "";
    QTest::newRow("block without outline") << blockId;
}

void tst_CRkNoflyApplyWgt::noOutline()
{
    QFETCH(QString, id);
    addBlock({});
    const CRkNoflyApplyWgt form(id, {}, nullptr);
    QCOMPARE(table(form)->rowCount(), 0);
    fill(form);
    QCOMPARE(sent(form).value("area"), QJsonValue(""));
}

void tst_CRkNoflyApplyWgt::coordinatesCannotBeEdited()
{
    addBlock({{30.5, 104}});
    CRkNoflyApplyWgt form(blockId, {}, nullptr);
    form.show();
    QVERIFY(comesOnScreen(&form));
    const QPoint cell = table(form)->visualItemRect(table(form)->item(0, 0)).center();
    QTest::mouseDClick(table(form)->viewport(), Qt::LeftButton, {}, cell);
    QVERIFY(!table(form)->viewport()->findChild<QLineEdit*>());
}

void tst_CRkNoflyApplyWgt::manyCorners()
{
    QList<QPointF> corners;
    for (int i = 0; i < 10000; ++i)
        corners.append({30 + i * 1e-4, 104 - i * 1e-4});
    addBlock(corners);
    const CRkNoflyApplyWgt form(blockId, {}, nullptr);
    QCOMPARE(table(form)->rowCount(), 10000);
    QCOMPARE(table(form)->item(9999, 0)->text(), QString("103.000100"));
    fill(form);
    QCOMPARE(sent(form).value("area").toString().count('|'), 9999);
}

void tst_CRkNoflyApplyWgt::choosesTheDocument()
{
    const QString path = m_home.path() + "/permit.pdf";
    QVERIFY(writeFile(path, "x"));
    CRkNoflyApplyWgt form({}, {}, nullptr);
    part<QLineEdit>(form, "m_pEdtDocPath")->setText("before");
    FileChooser chooser(path);
    part<QPushButton>(form, "m_pBtnDocSele")->click();
    QCOMPARE(chooser.dialogs, 1);
    QCOMPARE(chooser.title, QString("Apply file"));
    QCOMPARE(chooser.filters,
             QStringList({"doc file(*.doc *.docx)", "pdf file(*.pdf)",
                          "image file(*.jpg *.png *.bmp *.jpeg)"}));
    QCOMPARE(chooser.mode, QFileDialog::ExistingFile);
    QCOMPARE(chooser.parent, &form); // Otherwise it would lie below the form, which stays on top.
    QCOMPARE(part<QLineEdit>(form, "m_pEdtDocPath")->text(), path);
}

void tst_CRkNoflyApplyWgt::cancelledChoiceEmptiesThePath()
{
    const CRkNoflyApplyWgt form({}, {}, nullptr);
    part<QLineEdit>(form, "m_pEdtDocPath")->setText("before");
    FileChooser chooser{QString()};
    part<QPushButton>(form, "m_pBtnDocSele")->click();
    QCOMPARE(chooser.dialogs, 1);
    QCOMPARE(part<QLineEdit>(form, "m_pEdtDocPath")->text(), QString());
}

void tst_CRkNoflyApplyWgt::refuses_data()
{
    QTest::addColumn<QString>("document");
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("duration"); // ms
    QTest::addColumn<QString>("message");
    QTest::newRow("nothing") << ""
                             << "" << 0 << noDocument;
    QTest::newRow("no document, no name") << ""
                                          << "" << 1000 << noDocument;
    QTest::newRow("no document") << ""
                                 << "Wang" << 1000 << noDocument;
    QTest::newRow("no name") << "/a"
                             << "" << 1000 << noName;
    QTest::newRow("no name, no duration") << "/a"
                                          << "" << 0 << noName;
    QTest::newRow("no duration") << "/a"
                                 << "Wang" << 0 << noDuration;
    QTest::newRow("a duration that does not show") << "/a"
                                                   << "Wang" << 999 << noDuration;
    QTest::newRow("end before start") << "/a"
                                      << "Wang" << -1000 << noDuration;
}

void tst_CRkNoflyApplyWgt::refuses()
{
    QFETCH(QString, document);
    QFETCH(QString, name);
    QFETCH(int, duration);
    QFETCH(QString, message);
    CRkNoflyApplyWgt form({}, {}, nullptr);
    part<QLineEdit>(form, "m_pEdtDocPath")->setText(document);
    part<QLineEdit>(form, "m_pEdtAuthName")->setText(name);
    const QDateTime start({2026, 5, 1}, {8, 0, 0});
    startEdit(form)->setDateTime(start);
    endEdit(form)->setDateTime(start.addMSecs(duration));
    BoxAnswerer answerer;
    bool isOpen = false;
    const int result = execAnd(form, [&] {
        okButton(form)->click();
        isOpen = form.isVisible();
        form.reject();
    });
    QCOMPARE(answerer.boxes.size(), 1);
    QCOMPARE(answerer.boxes.first().text, message);
    QVERIFY(isOpen);
    QCOMPARE(result, 0);
}

void tst_CRkNoflyApplyWgt::accepts()
{
    CRkNoflyApplyWgt form({}, {}, nullptr);
    fill(form);
    endEdit(form)->setDateTime(startEdit(form)->dateTime().addSecs(1));
    const BoxAnswerer answerer;
    const QSignalSpy accepted(&form, &QDialog::accepted);
    QCOMPARE(execAnd(form, [&] { okButton(form)->click(); }), 1);
    QCOMPARE(answerer.boxes.size(), 0);
    QCOMPARE(accepted.count(), 1);
    QVERIFY(!form.isVisible());
}

void tst_CRkNoflyApplyWgt::acceptsAfterARefusal()
{
    CRkNoflyApplyWgt form({}, {}, nullptr);
    const BoxAnswerer answerer;
    const int result = execAnd(form, [&] {
        okButton(form)->click();
        fill(form);
        okButton(form)->click();
    });
    QCOMPARE(answerer.boxes.size(), 1);
    QCOMPARE(result, 1);
}

void tst_CRkNoflyApplyWgt::boxLook()
{
    const CRkNoflyApplyWgt form({}, {}, nullptr);
    const BoxAnswerer answerer;
    okButton(form)->click();
    QCOMPARE(answerer.boxes.size(), 1);
    const ShownBox& box = answerer.boxes.first();
    QCOMPARE(box.title, title);
    QVERIFY(box.isCancelHidden);
    QVERIFY(box.isModalWindow);
    QCOMPARE(box.icon, QPixmap(":/images/Normal/Exclamation_mark.png").toImage());
}

void tst_CRkNoflyApplyWgt::otherEnds()
{
    CRkNoflyApplyWgt cancelled({}, {}, nullptr);
    QCOMPARE(
        execAnd(cancelled, [&] { cancelled.findChild<QPushButton*>("m_pBtnCancel")->click(); }), 0);
    CRkNoflyApplyWgt closed({}, {}, nullptr);
    QCOMPARE(execAnd(closed, [&] { closed.findChild<QPushButton*>("m_pBtnClose")->click(); }), -1);
    CRkNoflyApplyWgt escaped({}, {}, nullptr);
    QCOMPARE(execAnd(escaped, [&] { QTest::keyClick(&escaped, Qt::Key_Escape); }), 0);
}

void tst_CRkNoflyApplyWgt::noDocumentPathGivesNothing()
{
    const CRkNoflyApplyWgt form({}, {}, nullptr);
    fill(form);
    part<QLineEdit>(form, "m_pEdtDocPath")->clear();
    QCOMPARE(form.ComboUploadData(), QByteArray());
}

void tst_CRkNoflyApplyWgt::sendsWhatIsFilledIn()
{
    const QString path = m_home.path() + "/permit.pdf";
    QVERIFY(writeFile(path, QByteArray("\0text\xff", 6)));
    addBlock({{30.5, 104}, {30.6, 105}});
    const CRkNoflyApplyWgt form(blockId, {"510100", "510200"}, nullptr);
    fill(form, path);
    part<QLineEdit>(form, "m_pEdtContact")->setText("13800000000");
    part<QLineEdit>(form, "m_pEdtCompany")->setText("Survey & Co");
    part<QPlainTextEdit>(form, "plainTextEdit")->setPlainText("line 1\n\"line 2\"");
    const QJsonObject expected{
        {"filename", "permit.pdf"},
        {"data", "AHRleHT/"},
        {"area", "104.000000,30.500000,N/A|105.000000,30.600000,N/A"},
        {"beginat", "2026-05-01 08:05:09"},
        {"expiredat", "2026-12-31 18:00:00"},
        {"localids", "510100,510200"},
        {"pic", ""},
        {"name", "Wang"},
        {"contact", "13800000000"},
        {"strCompany", "Survey & Co"},
        {"explain", "line 1\n\"line 2\""},
    };
    QCOMPARE(sent(form), expected);
    QCOMPARE(form.ComboUploadData(), QJsonDocument(expected).toJson(QJsonDocument::Compact));
}

void tst_CRkNoflyApplyWgt::area_data()
{
    QTest::addColumn<bool>("isCellTaken");
    QTest::addColumn<QString>("text");
    QTest::newRow("whole") << false << "104.000000,30.500000,N/A";
    QTest::newRow("a cell that is gone") << true << "104.000000,,N/A";
}

/// The table is what is sent.
void tst_CRkNoflyApplyWgt::area()
{
    QFETCH(bool, isCellTaken);
    QFETCH(QString, text);
    addBlock({{30.5, 104}});
    const CRkNoflyApplyWgt form(blockId, {}, nullptr);
    fill(form);
    if (isCellTaken)
        delete table(form)->takeItem(0, 1);
    QCOMPARE(sent(form).value("area").toString(), text);
}

void tst_CRkNoflyApplyWgt::documents_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("empty") << "empty.pdf" << QByteArray();
    QTest::newRow("one byte") << "one.pdf" << QByteArray(1, '\0');
    QTest::newRow("lines") << "lines.doc" << QByteArray("a\r\nb\n");
    QTest::newRow("name that is not Latin") << "批文 #1 100%.pdf" << QByteArray("x");
    QTest::newRow("no extension") << "permit" << QByteArray("x");
}

void tst_CRkNoflyApplyWgt::documents()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, content);
    const QString path = m_home.path() + "/documents/" + name;
    QVERIFY(writeFile(path, content));
    const CRkNoflyApplyWgt form({}, {}, nullptr);
    fill(form, path);
    const QJsonObject object = sent(form);
    QCOMPARE(object.value("filename").toString(), name);
    QCOMPARE(object.value("data").toString().toLatin1(), content.toBase64());
}

void tst_CRkNoflyApplyWgt::unreadableDocuments_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("missing") << "missing.pdf";
    QTest::newRow("a folder") << "folder.pdf";
    QTest::newRow("a file in a missing folder") << "missing/permit.pdf";
#ifndef Q_OS_WIN // Its pipes are no files.
    QTest::newRow("a pipe that nobody writes to") << "pipe.pdf";
#endif
    QTest::newRow("larger than memory can take") << "huge.pdf";
}

/// They are sent as empty ones, and at once.
void tst_CRkNoflyApplyWgt::unreadableDocuments()
{
    QFETCH(QString, name);
    const QDir home(m_home.path());
    QVERIFY(home.mkpath("folder.pdf"));
    if (name == "pipe.pdf")
        QCOMPARE(QProcess::execute("mkfifo", {home.filePath(name)}), 0);
    if (name == "huge.pdf") { // Without blocks on the disk.
        QFile huge(home.filePath(name));
        QVERIFY(huge.open(QIODevice::WriteOnly) && huge.resize(1'500'000'001));
    }
    const CRkNoflyApplyWgt form({}, {}, nullptr);
    fill(form, home.filePath(name));
    const QJsonObject object = sent(form);
    QCOMPARE(object.value("data"), QJsonValue(""));
    QCOMPARE(object.value("filename").toString(), name.section('/', -1));
    QCOMPARE(object.value("name"), QJsonValue("Wang"));
}

void tst_CRkNoflyApplyWgt::documentOf100MB()
{
    QByteArray content(100'000'000, Qt::Uninitialized);
    for (int i = 0; i < content.size(); ++i)
        content[i] = char(i % 251 + i / 65536);
    const QString path = m_home.path() + "/large.pdf";
    QVERIFY(writeFile(path, content));
    const CRkNoflyApplyWgt form({}, {}, nullptr);
    fill(form, path);
    const QByteArray json = form.ComboUploadData();
    QVERIFY(QFile::remove(path));
    const QByteArray key = "\"data\":\"";
    const int begin = json.indexOf(key) + key.size();
    const QByteArray data = json.mid(begin, json.indexOf('"', begin) - begin);
    QVERIFY(QByteArray::fromBase64(data) == content);
}

void tst_CRkNoflyApplyWgt::screenShot_data()
{
    QTest::addColumn<QSize>("size");
    QTest::newRow("map panel") << QSize(900, 700);
    QTest::newRow("wide") << QSize(1000, 10);
    QTest::newRow("tall") << QSize(10, 1000);
    QTest::newRow("small") << QSize(4, 3);
}

void tst_CRkNoflyApplyWgt::screenShot()
{
    QFETCH(QSize, size);
    CRkNoflyApplyWgt form({}, {}, nullptr);
    const auto* label = part<QLabel>(form, "label_pic");
    const QImage image = pattern(size);
    form.SetScreenShotsImage(image);
    const QImage shown = label->pixmap(Qt::ReturnByValue).toImage();
    QCOMPARE(shown.size(), size.scaled(label->size(), Qt::KeepAspectRatio));
    QCOMPARE(shown.convertToFormat(QImage::Format_RGB32),
             image.scaled(label->size(), Qt::KeepAspectRatio, Qt::FastTransformation));
    form.show();
    QVERIFY(comesOnScreen(&form));
    QCOMPARE(label->size(), label->minimumSize()); // The size for which it was scaled.
}

void tst_CRkNoflyApplyWgt::screenShotIsSharpAtEveryScale()
{
    QFETCH(int, scale);
    if (!isAtScale(scale))
        return;
    CRkNoflyApplyWgt form({}, {}, nullptr);
    form.SetScreenShotsImage(pattern({640, 320}));
    const auto* label = part<QLabel>(form, "label_pic");
    const QPixmap shown = label->pixmap(Qt::ReturnByValue);
    QCOMPARE(shown.devicePixelRatio(), qreal(scale));
    QCOMPARE(shown.size(), QSize(640, 320).scaled(label->size() * scale, Qt::KeepAspectRatio));
}

void tst_CRkNoflyApplyWgt::screenShotIsSentWhole()
{
    CRkNoflyApplyWgt form({}, {}, nullptr);
    fill(form);
    const QImage image = pattern({900, 700});
    form.SetScreenShotsImage(image);
    const QByteArray png = QByteArray::fromBase64(sent(form).value("pic").toString().toLatin1());
    QVERIFY(png.startsWith("\x89PNG"));
    QCOMPARE(QImage::fromData(png).convertToFormat(QImage::Format_RGB32), image);
}

void tst_CRkNoflyApplyWgt::screenShotCanBeTakenAway()
{
    CRkNoflyApplyWgt form({}, {}, nullptr);
    fill(form);
    form.SetScreenShotsImage(pattern({90, 70}));
    form.SetScreenShotsImage(QImage());
    QVERIFY(part<QLabel>(form, "label_pic")->pixmap(Qt::ReturnByValue).isNull());
    QCOMPARE(sent(form).value("pic"), QJsonValue(""));
}

QTEST_MAIN(tst_CRkNoflyApplyWgt)
#include "tst_CRkNoflyApplyWgt.moc"
