// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include <RkBaseUI/CRkBaseDialog.h>

#include "support/WindowWaits.h"
#include "widgets/AtScale.h"

#include <QApplication>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QTest>

namespace {

QStringList messages;

void recordMessage(QtMsgType, const QMessageLogContext&, const QString& text)
{
    messages.append(text);
}

/// The dialog with its buttons.
class Dialog : public CRkBaseDialog
{
public:
    using CRkBaseDialog::CRkBaseDialog;

    using CRkBaseDialog::cancelButton;
    using CRkBaseDialog::closeButton;
    using CRkBaseDialog::okButton;
};

/// Whether the images agree in `area` of pixels up to rounding in the blending of colours.
bool sameIn(const QRect& area, const QImage& a, const QImage& b)
{
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x) {
            const QColor p = a.pixelColor(x, y);
            const QColor q = b.pixelColor(x, y);
            if (qAbs(p.red() - q.red()) > 2 || qAbs(p.green() - q.green()) > 2
                || qAbs(p.blue() - q.blue()) > 2)
                return false;
        }
    }
    return true;
}

const QColor titleColor(4, 21, 46);
const QColor rowColor(232, 237, 246);

} // namespace

class tst_CRkBaseDialogLook : public QObject
{
    Q_OBJECT

private slots:
    void styleSheetsPrintNothing();
    void colours();
    void pictureIsDrawnOnce();
    void sharpAtEveryScale_data();
    void sharpAtEveryScale();
};

void tst_CRkBaseDialogLook::styleSheetsPrintNothing()
{
    messages.clear();
    const QtMessageHandler before = qInstallMessageHandler(recordMessage);
    Dialog dialog(nullptr);
    dialog.grab();
    dialog.okButton()->setDown(true);
    dialog.cancelButton()->setEnabled(false);
    dialog.grab();
    qInstallMessageHandler(before);
    QVERIFY2(messages.isEmpty(), qPrintable(messages.join(QLatin1Char('\n'))));
}

void tst_CRkBaseDialogLook::colours()
{
    Dialog dialog(nullptr);
    dialog.move(100, 120);
    dialog.show();
    QVERIFY(comesOnScreen(&dialog));
    QWindow* window = dialog.windowHandle();
    const auto colorAt = [&dialog](QPoint at) {
        const QImage image = dialog.grab().toImage();
        return image.pixelColor(at * image.devicePixelRatio());
    };
    QCOMPARE(colorAt({150, 16}), titleColor);
    QCOMPARE(colorAt({150, 50}), QColor(Qt::white));
    QCOMPARE(colorAt({20, 80}), rowColor);

    const QPoint okPlate = dialog.okButton()->pos() + QPoint(41, 8);
    const QPoint cancelPlate = dialog.cancelButton()->pos() + QPoint(41, 8);
    const QPoint closePlate = dialog.closeButton()->pos() + QPoint(16, 5);
    const QColor rest = colorAt(cancelPlate);
    QCOMPARE(colorAt(okPlate), rest);
    QCOMPARE(colorAt(closePlate), titleColor);

    QTest::mouseMove(window, QPoint(20, 80));
    QTest::mouseMove(window, okPlate);
    const QColor hovered = colorAt(okPlate);
    QVERIFY(hovered != rest);
    QCOMPARE(colorAt(cancelPlate), rest);
    QTest::mousePress(window, Qt::LeftButton, {}, okPlate);
    QCOMPARE(colorAt(okPlate), hovered);
    QTest::mouseMove(window, QPoint(20, 80));
    QTest::mouseRelease(window, Qt::LeftButton, {}, QPoint(20, 80));
    QVERIFY(dialog.isVisible());

    QTest::mouseMove(window, closePlate);
    const QColor closeHovered = colorAt(closePlate);
    QVERIFY(closeHovered != titleColor);
    QTest::mousePress(window, Qt::LeftButton, {}, closePlate);
    QVERIFY(colorAt(closePlate) != closeHovered);
    QTest::mouseMove(window, QPoint(150, 16));
    QTest::mouseRelease(window, Qt::LeftButton, {}, QPoint(150, 16));
    QCOMPARE(colorAt(closePlate), titleColor);

    dialog.okButton()->setEnabled(false);
    QCOMPARE(colorAt(okPlate), rest);
}

void tst_CRkBaseDialogLook::pictureIsDrawnOnce()
{
    Dialog dialog(nullptr);
    dialog.okButton()->setMinimumSize(300, 100);
    dialog.okButton()->setText(QString());
    dialog.show();
    dialog.okButton()->clearFocus(); // Some styles draw a frame around what has it.
    const QImage image = dialog.grab(dialog.okButton()->geometry()).toImage();
    QRect drawn;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, y) != rowColor)
                drawn |= QRect(x, y, 1, 1);
        }
    }
    QVERIFY(
        QRect(QPoint(109, 33) * image.devicePixelRatio(), QSize(82, 34) * image.devicePixelRatio())
            .contains(drawn));
    QVERIFY(drawn.width() > 60);
}

void tst_CRkBaseDialogLook::sharpAtEveryScale_data()
{
    QTest::addColumn<int>("scale");
    QTest::newRow("one to one") << 1;
    QTest::newRow("double") << 2;
}

void tst_CRkBaseDialogLook::sharpAtEveryScale()
{
    QFETCH(int, scale);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    if (!isAtScale(scale))
        return;

    Dialog dialog(nullptr);
    dialog.show();
    const QString suffix = scale == 2 ? "@2x.png" : ".png";
    const auto expected = [&](QWidget* button, const QColor& ground, const QStringList& pictures) {
        QImage image(button->size() * scale, QImage::Format_RGB32);
        image.fill(ground);
        QPainter painter(&image);
        for (const QString& picture : pictures) {
            QImage layer(":/images/Normal/" + picture + suffix);
            layer.setDevicePixelRatio(1);
            const QSize margin = (image.size() - layer.size()) / 2;
            painter.drawImage(QPoint(margin.width(), margin.height()), layer);
        }
        return image;
    };
    const auto grabbed = [&dialog, scale](QWidget* button) {
        return dialog.grab().toImage().copy(
            QRect(button->mapTo(&dialog, QPoint()) * scale, button->size() * scale));
    };

    QPushButton* cancel = dialog.cancelButton();
    const QRect leftOfText(0, 0, 14 * scale, cancel->height() * scale);
    QVERIFY(sameIn(leftOfText, grabbed(cancel), expected(cancel, rowColor, {"ProjMgr/btn_nor"})));

    QPushButton* close = dialog.closeButton();
    QVERIFY(sameIn(QRect(QPoint(), close->size() * scale), grabbed(close),
                   expected(close, titleColor, {"eng_close_but_nor", "Common_close1_but_nor"})));

    auto* logo = dialog.findChild<QLabel*>("label");
    QVERIFY(sameIn(QRect(QPoint(), logo->size() * scale), grabbed(logo),
                   expected(logo, titleColor, {"ProjMgr/titl_logo"})));
}

QTEST_MAIN(tst_CRkBaseDialogLook)
#include "tst_CRkBaseDialogLook.moc"
