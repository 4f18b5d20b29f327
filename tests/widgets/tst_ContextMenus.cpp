// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "support/Readability.h"
#include "support/TestSupport.h"

#include <RkBaseUI/CRkBlockManagerWidget.h>
#include <RkBaseUI/CRkCitySelectWidget.h>
#include <RkBaseUI/CRkCoordFormat.h>
#include <RkBaseUI/CRkDateSelectWidget.h>
#include <RkBaseUI/CRkLightWgt.h>
#include <RkBaseUI/CRkNoflyApplyWgt.h>
#include <RkBaseUI/CRkParameterEditPage.h>
#include <RkBaseUI/CRkProjectManagerDialog.h>
#include <RkBaseUI/CRkProjectManagerWidget.h>
#include <RkBaseUI/CRkVerHighCalculator.h>
#include <RkBaseUI/CRkVolumeWgt.h>

#include <QAbstractSpinBox>
#include <QContextMenuEvent>
#include <QLineEdit>
#include <QMenu>
#include <QTextEdit>
#include <QTimer>
#include <QtTest>

#include <functional>
#include <memory>

namespace {

using Maker = std::function<std::unique_ptr<QWidget>()>;

/// The fields for a text or a number, by what takes their events.
QList<QWidget*> fieldsOf(const QWidget& window)
{
    QList<QWidget*> fields;
    const QList<QLineEdit*> edits = window.findChildren<QLineEdit*>();
    for (QLineEdit* edit : edits) {
        if (!edit->isEnabledTo(&window) || qobject_cast<QAbstractSpinBox*>(edit->parent()))
            continue;
        edit->setText("1");
        edit->selectAll();
        fields.append(edit);
    }
    const QList<QAbstractSpinBox*> boxes = window.findChildren<QAbstractSpinBox*>();
    for (QAbstractSpinBox* box : boxes) {
        box->selectAll();
        fields.append(box);
    }
    const QList<QTextEdit*> pages = window.findChildren<QTextEdit*>();
    for (QTextEdit* page : pages) {
        page->setPlainText("1");
        page->selectAll();
        fields.append(page->viewport());
    }
    return fields;
}

/// How entries of a menu can be read.
struct MenuReading
{
    Reading current;
    Reading enabled;
    Reading disabled;
};

MenuReading read(QMenu& menu)
{
    QList<QAction*> enabled;
    QList<QAction*> disabled;
    const QList<QAction*> actions = menu.actions();
    for (QAction* action : actions) {
        if (!action->isSeparator())
            (action->isEnabled() ? enabled : disabled).append(action);
    }
    menu.setActiveAction(enabled.value(0));
    const QImage image = menu.grab().toImage();
    const auto readEntry = [&](QAction* action) {
        return action ? read(image, menu.actionGeometry(action).adjusted(4, 2, -4, -2)) : Reading();
    };
    return {readEntry(enabled.value(0)), readEntry(enabled.value(1)), readEntry(disabled.value(0))};
}

/// Asks a field for its menu; nothing when none comes up.
MenuReading readMenuOf(QWidget& field)
{
    MenuReading reading;
    bool isRead = false;
    // Some fields wait until their menu is closed.
    QTimer::singleShot(0, qApp, [&] {
        if (auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget())) {
            reading = read(*menu);
            menu->close();
        }
        isRead = true;
    });
    const QPoint middle = field.rect().center();
    QContextMenuEvent event(QContextMenuEvent::Keyboard, middle, field.mapToGlobal(middle));
    QApplication::sendEvent(&field, &event);
    while (!isRead)
        QApplication::processEvents();
    return reading;
}

} // namespace

Q_DECLARE_METATYPE(Maker)

/// The menus of the fields of every window, which take over colours from what they stand on.
class tst_ContextMenus : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_home = std::make_unique<TestHome>(); }
    void entriesAreReadable_data();
    void entriesAreReadable();

private:
    std::unique_ptr<TestHome> m_home;
};

void tst_ContextMenus::entriesAreReadable_data()
{
    QTest::addColumn<Maker>("make");
    const auto row = [](const char* name, const Maker& make) { QTest::newRow(name) << make; };
    row("project dialog", [] { return std::make_unique<CRkProjectManagerDialog>(nullptr); });
    row("project page", [] { return std::make_unique<CRkProjectManagerWidget>(nullptr); });
    row("block page", [] { return std::make_unique<CRkBlockManagerWidget>(nullptr); });
    row("city picker", [] { return std::make_unique<CRkCitySelectWidget>(nullptr); });
    row("date picker", [] { return std::make_unique<CRkDateSelectWidget>(nullptr); });
    row("four fields", [] { return std::make_unique<CRkParameterEditPage>(nullptr); });
    row("earthwork", [] { return std::make_unique<CRkVolumeWgt>(nullptr); });
    row("antenna height", [] { return std::make_unique<CRkVerHighCalculator>(nullptr); });
    row("coordinates", [] { return std::make_unique<CRkCoordFormat>(nullptr); });
    row("light", [] { return std::make_unique<CRkLightWgt>(nullptr); });
    row("no-fly application",
        [] { return std::make_unique<CRkNoflyApplyWgt>(QString(), QStringList()); });
}

void tst_ContextMenus::entriesAreReadable()
{
    QFETCH(Maker, make);
    const std::unique_ptr<QWidget> window = make();
    const QList<QWidget*> fields = fieldsOf(*window);
    QVERIFY(!fields.isEmpty());
    for (QWidget* field : fields) {
        const MenuReading menu = readMenuOf(*field);
        QVERIFY2(menu.current.contrast >= 3, qPrintable(field->objectName()));
        QVERIFY2(menu.current.ground != menu.enabled.ground, qPrintable(field->objectName()));
        QVERIFY2(menu.disabled.contrast < menu.enabled.contrast, qPrintable(field->objectName()));
    }
}

QTEST_MAIN(tst_ContextMenus)
#include "tst_ContextMenus.moc"
