// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "app/GalleryParts.h"
#include "app/GalleryWindows.h"
#include "app/MapPanel.h"

#include <RkBaseUI/CRkNoflyApplyUpload.h>
#include <RkBaseUI/CRkNoflyApplyWgt.h>
#include <RkData/CRkBlock.h>
#include <RkData/CRkBlockManager.h>

#include <QDateTimeEdit>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>

namespace {

using GalleryParts::Texts;
using GalleryParts::Window;

const QString blockId = QStringLiteral("gallery-no-fly-block");

/// x latitude, y longitude.
QList<QPointF> outline()
{
    return {{30.57812, 103.94103},
            {30.57764, 103.95387},
            {30.57211, 103.95721},
            {30.56795, 103.95046},
            {30.56902, 103.94015}};
}

QImage mapPicture()
{
    MapPanel map;
    map.setAttribute(Qt::WA_DontShowOnScreen);
    map.resize(960, 640);
    map.show();
    MapBlocks::Block block;
    block.outline = outline().toVector();
    block.isOpened = true;
    map.setBlocks({block});
    map.setView(map.view().showing(MapBlocks({block}).openedExtent(), 160));
    return map.picture();
}

void setTimes(QWidget& form, const QString& start, const QString& end)
{
    const QString format = QStringLiteral("yyyy-MM-dd hh:mm");
    form.findChild<QDateTimeEdit*>(QStringLiteral("m_pDateStart"))
        ->setDateTime(QDateTime::fromString(start, format));
    form.findChild<QDateTimeEdit*>(QStringLiteral("m_pDateEnd"))
        ->setDateTime(QDateTime::fromString(end, format));
}

void setText(QWidget& form, const char* field, const QString& text)
{
    form.findChild<QLineEdit*>(QLatin1String(field))->setText(text);
}

/// As it opens, at a time that is the same in every gallery.
Window emptyForm()
{
    auto form = std::make_unique<CRkNoflyApplyWgt>(QString(), QStringList(), nullptr);
    setTimes(*form, QStringLiteral("2026-05-08 09:30"), QStringLiteral("2026-05-08 09:30"));
    return form;
}

Window filledForm()
{
    auto block = std::make_unique<CRkBlock>();
    block->SetBlockID(blockId);
    block->SetAnchor(outline());
    CRkBlockManager::instance().AddBlock(block.release());

    auto form = std::make_unique<CRkNoflyApplyWgt>(blockId, QStringList(), nullptr);
    form->SetScreenShotsImage(mapPicture());
    setText(*form, "m_pEdtDocPath", QStringLiteral("/surveys/2026/airspace-permit.pdf"));
    setText(*form, "m_pEdtAuthName", Texts::tr("Wang Lin"));
    setText(*form, "m_pEdtContact", QStringLiteral("+86 138 0000 0000"));
    setText(*form, "m_pEdtCompany", Texts::tr("Eastern River Survey Institute"));
    setTimes(*form, QStringLiteral("2026-05-11 08:00"), QStringLiteral("2026-05-22 18:00"));
    form->findChild<QPlainTextEdit*>()->setPlainText(
        Texts::tr("Survey of the embankment after the flood. Flights by daylight only, below 120 m "
                  "above the ground, in agreement with the tower."));
    return form;
}

QImage refused(QWidget& form)
{
    return GalleryParts::withMessage(
        form, [&form] { form.findChild<QPushButton*>(QStringLiteral("m_pBtnOK"))->click(); });
}

QImage withoutName(QWidget& form)
{
    setText(form, "m_pEdtAuthName", QString());
    return refused(form);
}

QImage withoutDuration(QWidget& form)
{
    setTimes(form, QStringLiteral("2026-05-11 08:00"), QStringLiteral("2026-05-11 08:00"));
    return refused(form);
}

CRkNoflyApplyUpload& uploadOf(QWidget& window)
{
    return static_cast<CRkNoflyApplyUpload&>(window);
}

Window upload()
{
    return std::make_unique<CRkNoflyApplyUpload>(nullptr);
}

/// Some of a document of 20 MB.
Window uploadUnderWay()
{
    Window window = upload();
    uploadOf(*window).slotLoadProcess(qint64(13'400'000), qint64(20'000'000));
    return window;
}

void fail(QWidget& window)
{
    uploadOf(window).slotUploadNetWorkError();
}

/// Looks as after Retry, without a request to the service.
void retry(QWidget& window)
{
    // Not a literal in the call, because the text is the library's to translate.
    const char* const text = "Retry...";
    uploadOf(window).slotStartCurrentDownLoadProcess(CRkNoflyApplyUpload::tr(text));
}

void refuseUser(QWidget& window)
{
    uploadOf(window).slotNoLogin();
}

void finish(QWidget& window)
{
    uploadOf(window).slotLoadProcess(1, 1);
    uploadOf(window).SetUpLoadRet(true);
}

} // namespace

QVector<Gallery::Entry> galleryNoFly()
{
    return {
        {QStringLiteral("nofly"), filledForm, {}},
        {QStringLiteral("nofly-empty"), emptyForm, {}},
        {QStringLiteral("nofly-no-document"), emptyForm, {}, refused},
        {QStringLiteral("nofly-no-name"), filledForm, {}, withoutName},
        {QStringLiteral("nofly-no-duration"), filledForm, {}, withoutDuration},
        {QStringLiteral("nofly-upload-start"), upload, {}},
        {QStringLiteral("nofly-upload"), uploadUnderWay, {}},
        {QStringLiteral("nofly-upload-failed"), uploadUnderWay, fail},
        {QStringLiteral("nofly-upload-retry"), uploadUnderWay, retry},
        {QStringLiteral("nofly-upload-no-login"), uploadUnderWay, refuseUser},
        {QStringLiteral("nofly-upload-finished"), uploadUnderWay, finish},
    };
}
