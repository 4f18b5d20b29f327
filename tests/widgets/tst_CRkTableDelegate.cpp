// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include <RkBaseUI/CRkTableDelegate.h>

#include <QApplication>
#include <QComboBox>
#include <QDate>
#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QMetaMethod>
#include <QSignalSpy>
#include <QStandardItemModel>
#include <QTableWidget>
#include <QTest>

#include <cmath>
#include <memory>

namespace {

/// A delegate that notes which of its slots are reached.
class Delegate : public CRkTableDelegate
{
public:
    using CRkTableDelegate::CRkTableDelegate;

    void SpinBoxValueChanged(double value) override
    {
        calls.append(QString("spin box %1").arg(value));
        CRkTableDelegate::SpinBoxValueChanged(value);
    }
    void ComboBoxChanged(int index) override
    {
        calls.append(QString("combo box %1").arg(index));
        CRkTableDelegate::ComboBoxChanged(index);
    }
    void LineEditFinished() override
    {
        calls.append("line edit finished");
        CRkTableDelegate::LineEditFinished();
    }
    void LineEditTextChanged(const QString& text) override
    {
        calls.append("line edit " + text);
        CRkTableDelegate::LineEditTextChanged(text);
    }

    QStringList calls;
};

const QList<QPair<QString, QVariant>> cameras = {
    {"One lens", 1}, {"Five lenses", 5}, {"none", "None"}};

QVariant descriptor(int kind)
{
    return QVariant::fromValue(RkEditorDescriptor{kind, cameras});
}

/// A cell with its editor, made and loaded as a view does it.
struct Cell
{
    explicit Cell(const QVariant& descriptorData, const QVariant& value = {},
                  const QString& name = "7|3")
    {
        auto* item = new QStandardItem;
        item->setData(value, Qt::EditRole);
        item->setData(descriptorData, Qt::UserRole);
        item->setStatusTip(name);
        model.appendRow(item);
        open();
    }

    void open()
    {
        editor.reset(delegate.createEditor(&view, {}, index()));
        if (editor)
            delegate.setEditorData(editor.get(), index());
    }
    QVariant commit()
    {
        delegate.setModelData(editor.get(), &model, index());
        return index().data(Qt::EditRole);
    }
    QModelIndex index() const { return model.index(0, 0); }
    template <typename T>
    T* as() const
    {
        return qobject_cast<T*>(editor.get());
    }

    QWidget view;
    Delegate delegate;
    QStandardItemModel model;
    std::unique_ptr<QWidget> editor;
};

} // namespace

class tst_CRkTableDelegate : public QObject
{
    Q_OBJECT

private slots:
    void metaObject();
    void descriptorType();

    void kinds_data();
    void kinds();
    void dataThatIsNoDescriptor_data();
    void dataThatIsNoDescriptor();
    void objectName_data();
    void objectName();
    void invalidIndex();

    void spinBoxRange();
    void spinBoxReports();
    void spinBoxLoads_data();
    void spinBoxLoads();
    void spinBoxWritesBack();
    void spinBoxOfStringList();

    void comboBoxEntries();
    void comboBoxReports();
    void comboBoxLoads_data();
    void comboBoxLoads();
    void comboBoxWritesBack();
    void comboBoxWithoutEntries();

    void lineEditReports();
    void lineEditLoadsAndWritesBack();

    void loadingEmitsNothing_data();
    void loadingEmitsNothing();
    void signalsWorkAfterLoading();
    void baseEditorLoadsAndWritesBack();
    void slotsCalledDirectly();
    void descriptorTakenAwayMeanwhile_data();
    void descriptorTakenAwayMeanwhile();

    void displayText_data();
    void displayText();
    void displayTextOfOtherTypes();

    void inATable();
    void longTexts();
};

void tst_CRkTableDelegate::metaObject()
{
    const QMetaObject& meta = CRkTableDelegate::staticMetaObject;
    QCOMPARE(meta.superClass(), &QStyledItemDelegate::staticMetaObject);
    QStringList methods;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        methods.append((meta.method(i).methodType() == QMetaMethod::Signal ? "signal " : "slot ")
                       + QString(meta.method(i).methodSignature()));
    }
    QCOMPARE(methods,
             QStringList({"signal signalSpinBoxChanged(double,QString)",
                          "slot SpinBoxValueChanged(double)", "slot ComboBoxChanged(int)",
                          "slot LineEditFinished()", "slot LineEditTextChanged(QString)"}));
}

void tst_CRkTableDelegate::descriptorType()
{
    const CRkTableDelegate first;
    const CRkTableDelegate second; // registers nothing twice
    QCOMPARE(QMetaType::type("RkEditorDescriptor"), qMetaTypeId<RkEditorDescriptor>());
    QCOMPARE(RkEditorDescriptor().kind, 0);
    QVERIFY(RkEditorDescriptor().entries.isEmpty());

    const auto kindOf = [](const QVariant& value) {
        return value.value<RkEditorDescriptor>().kind;
    };
    QVERIFY(QVariant(QStringList("")).canConvert<RkEditorDescriptor>());
    QCOMPARE(kindOf(QStringList("")), 1);
    QCOMPARE(kindOf(QStringList("2")), 1);
    QCOMPARE(kindOf(QStringList()), 0);
    QCOMPARE(kindOf(QStringList({"", ""})), 0);
    QVERIFY(!QVariant("text").canConvert<RkEditorDescriptor>());
}

void tst_CRkTableDelegate::kinds_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("className");
    QTest::newRow("number") << 1 << "QDoubleSpinBox";
    QTest::newRow("choice") << 2 << "QComboBox";
    QTest::newRow("text") << 3 << "QLineEdit";
    QTest::newRow("zero") << 0 << "";
    QTest::newRow("four") << 4 << "";
    QTest::newRow("negative") << -1 << "";
}

void tst_CRkTableDelegate::kinds()
{
    QFETCH(int, kind);
    QFETCH(QString, className);
    const Cell cell(descriptor(kind));
    QCOMPARE(cell.editor ? cell.editor->metaObject()->className() : QString(), className);
    if (cell.editor)
        QCOMPARE(cell.editor->parentWidget(), &cell.view);
    QVERIFY(cell.delegate.calls.isEmpty());
}

void tst_CRkTableDelegate::dataThatIsNoDescriptor_data()
{
    QTest::addColumn<QVariant>("data");
    QTest::newRow("nothing") << QVariant();
    QTest::newRow("number") << QVariant(1);
    QTest::newRow("text") << QVariant("1");
    QTest::newRow("empty string list") << QVariant(QStringList());
    QTest::newRow("string list of two") << QVariant(QStringList({"a", "b"}));
    QTest::newRow("list of one") << QVariant(QVariantList({1}));
}

void tst_CRkTableDelegate::dataThatIsNoDescriptor()
{
    QFETCH(QVariant, data);
    Cell cell(data, "text");
    const QStyledItemDelegate base;
    const std::unique_ptr<QWidget> expected(base.createEditor(&cell.view, {}, cell.index()));
    QVERIFY(cell.editor);
    QCOMPARE(cell.editor->metaObject()->className(), expected->metaObject()->className());
    QCOMPARE(cell.as<QLineEdit>()->text(), QString("text"));
    QVERIFY(cell.editor->objectName() != "7|3");

    cell.as<QLineEdit>()->setText("other");
    QCOMPARE(cell.commit(), QVariant("other"));
    QVERIFY(cell.delegate.calls.isEmpty());
}

void tst_CRkTableDelegate::objectName_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("name");
    for (int kind = 1; kind <= 3; ++kind) {
        QTest::addRow("status tip, kind %d", kind) << kind << "12|3";
        QTest::addRow("no status tip, kind %d", kind) << kind << QString();
    }
}

void tst_CRkTableDelegate::objectName()
{
    QFETCH(int, kind);
    QFETCH(QString, name);
    const Cell cell(descriptor(kind), {}, name);
    QCOMPARE(cell.editor->objectName(), name);
}

void tst_CRkTableDelegate::invalidIndex()
{
    QWidget view;
    const CRkTableDelegate delegate;
    const QStyledItemDelegate base;
    const std::unique_ptr<QWidget> expected(base.createEditor(&view, {}, {}));
    const std::unique_ptr<QWidget> editor(delegate.createEditor(&view, {}, {}));
    QCOMPARE(bool(editor), bool(expected));
}

void tst_CRkTableDelegate::spinBoxRange()
{
    const Cell cell(descriptor(1));
    QCOMPARE(cell.as<QDoubleSpinBox>()->minimum(), 0.0);
    QCOMPARE(cell.as<QDoubleSpinBox>()->maximum(), 1e9);
    QCOMPARE(cell.as<QDoubleSpinBox>()->decimals(), 2);
}

void tst_CRkTableDelegate::spinBoxReports()
{
    const Cell cell(descriptor(1), 4.0);
    QSignalSpy changed(&cell.delegate, &CRkTableDelegate::signalSpinBoxChanged);
    cell.as<QDoubleSpinBox>()->setValue(12.5);
    QCOMPARE(cell.delegate.calls, QStringList("spin box 12.5"));
    QCOMPARE(changed.count(), 1);
    QCOMPARE(changed.first(), QVariantList({12.5, "7|3"}));

    cell.as<QDoubleSpinBox>()->setValue(12.5);
    QCOMPARE(changed.count(), 1);
}

void tst_CRkTableDelegate::spinBoxLoads_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<double>("number");
    QTest::newRow("number") << QVariant(31.25) << 31.25;
    QTest::newRow("text") << QVariant("31.25") << 31.25;
    QTest::newRow("nothing") << QVariant() << 0.0;
    QTest::newRow("empty text") << QVariant("") << 0.0;
    QTest::newRow("no number") << QVariant("high") << 0.0;
    QTest::newRow("below the range") << QVariant(-3.0) << 0.0;
    QTest::newRow("above the range") << QVariant(2e9) << 1e9;
}

void tst_CRkTableDelegate::spinBoxLoads()
{
    QFETCH(QVariant, value);
    QFETCH(double, number);
    const Cell cell(descriptor(1), value);
    QCOMPARE(cell.as<QDoubleSpinBox>()->value(), number);
}

void tst_CRkTableDelegate::spinBoxWritesBack()
{
    Cell cell(descriptor(1), "1.00");
    // Without keyboard tracking the typed text is no value before it is interpreted.
    auto* spinBox = cell.as<QDoubleSpinBox>();
    spinBox->setKeyboardTracking(false);
    spinBox->clear();
    QTest::keyClicks(spinBox, "42.5");
    QCOMPARE(spinBox->value(), 1.0);
    const QVariant stored = cell.commit();
    QCOMPARE(stored.userType(), int(QMetaType::Double));
    QCOMPARE(stored.toDouble(), 42.5);
}

/// A cell can ask for a number without knowing the descriptor.
void tst_CRkTableDelegate::spinBoxOfStringList()
{
    Cell cell(QStringList(QString()), "8.25");
    QVERIFY(cell.as<QDoubleSpinBox>());
    QCOMPARE(cell.as<QDoubleSpinBox>()->maximum(), 1e9);
    QCOMPARE(cell.editor->objectName(), QString("7|3"));
    QCOMPARE(cell.as<QDoubleSpinBox>()->value(), 8.25);
    QVERIFY(cell.delegate.calls.isEmpty());
    QSignalSpy changed(&cell.delegate, &CRkTableDelegate::signalSpinBoxChanged);
    cell.as<QDoubleSpinBox>()->setValue(9.0);
    QCOMPARE(changed.count(), 1);
    QCOMPARE(changed.first(), QVariantList({9.0, "7|3"}));
    QCOMPARE(cell.commit(), QVariant(9.0));
}

void tst_CRkTableDelegate::comboBoxEntries()
{
    const Cell cell(descriptor(2), 1);
    const auto* comboBox = cell.as<QComboBox>();
    QCOMPARE(comboBox->count(), 3);
    for (int i = 0; i < 3; ++i) {
        QCOMPARE(comboBox->itemText(i), cameras.at(i).first);
        QCOMPARE(comboBox->itemData(i), cameras.at(i).second);
    }
}

void tst_CRkTableDelegate::comboBoxReports()
{
    const Cell cell(descriptor(2), 1);
    QSignalSpy changed(&cell.delegate, &CRkTableDelegate::signalSpinBoxChanged);
    cell.as<QComboBox>()->setCurrentIndex(1);
    QCOMPARE(cell.delegate.calls, QStringList("combo box 1"));
    QCOMPARE(changed.count(), 0);
}

void tst_CRkTableDelegate::comboBoxLoads_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<int>("current");
    QTest::addColumn<int>("count");
    QTest::newRow("first") << QVariant(1) << 0 << 3;
    QTest::newRow("second") << QVariant(5) << 1 << 3;
    QTest::newRow("number as text") << QVariant("5") << 1 << 3;
    QTest::newRow("text") << QVariant("None") << 2 << 3;
    QTest::newRow("other case") << QVariant("none") << 3 << 4;
    QTest::newRow("text of an entry, not its data") << QVariant("One lens") << 3 << 4;
    QTest::newRow("beginning of a datum") << QVariant("Non") << 3 << 4;
    QTest::newRow("pattern") << QVariant("N*") << 3 << 4;
    QTest::newRow("absent number") << QVariant(7) << 3 << 4;
    QTest::newRow("nothing") << QVariant() << 3 << 4;
}

void tst_CRkTableDelegate::comboBoxLoads()
{
    QFETCH(QVariant, value);
    QFETCH(int, current);
    QFETCH(int, count);
    Cell cell(descriptor(2), value);
    const auto* comboBox = cell.as<QComboBox>();
    QCOMPARE(comboBox->count(), count);
    QCOMPARE(comboBox->currentIndex(), current);
    if (current == 3) {
        QCOMPARE(comboBox->currentText(), value.toString());
        QCOMPARE(comboBox->currentData(), value);
    }
    // Loading again finds it.
    cell.delegate.setEditorData(cell.editor.get(), cell.index());
    QCOMPARE(comboBox->count(), count);
    QCOMPARE(comboBox->currentIndex(), current);
}

void tst_CRkTableDelegate::comboBoxWritesBack()
{
    Cell cell(descriptor(2), 1);
    cell.as<QComboBox>()->setCurrentIndex(1);
    QCOMPARE(cell.commit(), QVariant("Five lenses"));
}

void tst_CRkTableDelegate::comboBoxWithoutEntries()
{
    Cell cell(QVariant::fromValue(RkEditorDescriptor{2, {}}), "alone");
    QCOMPARE(cell.as<QComboBox>()->count(), 1);
    QCOMPARE(cell.commit(), QVariant("alone"));

    // Nothing and an empty text are the same text.
    const Cell empty(QVariant::fromValue(RkEditorDescriptor{2, {{"any", ""}}}), QVariant());
    QCOMPARE(empty.as<QComboBox>()->count(), 1);
    QCOMPARE(empty.as<QComboBox>()->currentText(), QString("any"));
}

void tst_CRkTableDelegate::lineEditReports()
{
    const Cell cell(descriptor(3), "a");
    cell.as<QLineEdit>()->setText("b");
    QCOMPARE(cell.delegate.calls, QStringList("line edit b"));
    QTest::keyClick(cell.editor.get(), Qt::Key_Return);
    QCOMPARE(cell.delegate.calls, QStringList({"line edit b", "line edit finished"}));
}

void tst_CRkTableDelegate::lineEditLoadsAndWritesBack()
{
    Cell cell(descriptor(3), 12.5);
    QCOMPARE(cell.as<QLineEdit>()->text(), QString("12.5"));
    cell.as<QLineEdit>()->setText(" 13 m ");
    QCOMPARE(cell.commit(), QVariant(" 13 m "));
}

void tst_CRkTableDelegate::loadingEmitsNothing_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<QVariant>("value");
    QTest::newRow("number") << 1 << QVariant(8.0);
    QTest::newRow("choice") << 2 << QVariant(5);
    QTest::newRow("new choice") << 2 << QVariant(7);
    QTest::newRow("text") << 3 << QVariant("new");
}

void tst_CRkTableDelegate::loadingEmitsNothing()
{
    QFETCH(int, kind);
    QFETCH(QVariant, value);
    Cell cell(descriptor(kind), 1);
    QSignalSpy changed(&cell.delegate, &CRkTableDelegate::signalSpinBoxChanged);
    cell.model.setData(cell.index(), value, Qt::EditRole);
    cell.delegate.setEditorData(cell.editor.get(), cell.index());
    QCOMPARE(changed.count(), 0);
    QVERIFY2(cell.delegate.calls.isEmpty(), qPrintable(cell.delegate.calls.join(", ")));
    QVERIFY(!cell.editor->signalsBlocked());
}

void tst_CRkTableDelegate::signalsWorkAfterLoading()
{
    const Cell cell(descriptor(1), 1.0);
    QTest::keyClick(cell.editor.get(), Qt::Key_Up);
    QCOMPARE(cell.delegate.calls, QStringList("spin box 2"));
}

/// The base class's editor of a double looks like the one of kind 1 but is not.
void tst_CRkTableDelegate::baseEditorLoadsAndWritesBack()
{
    Cell cell({}, -3.5);
    auto* spinBox = cell.as<QDoubleSpinBox>();
    QVERIFY(spinBox);
    QCOMPARE(spinBox->value(), -3.5);
    spinBox->setValue(-4.5);
    QVERIFY(cell.delegate.calls.isEmpty());
    QCOMPARE(cell.commit(), QVariant(-4.5));

    // That of a bool is a combo box.
    Cell yes({}, true);
    QCOMPARE(yes.as<QComboBox>()->count(), 2);
    QCOMPARE(yes.commit(), QVariant(true));

    // Its line edit widens with the text it loads, by its own signal.
    Cell text({}, "a");
    text.as<QLineEdit>()->show();
    const int narrow = text.editor->width();
    text.view.resize(2000, 100);
    text.model.setData(text.index(), QString(60, 'm'), Qt::EditRole);
    text.delegate.setEditorData(text.editor.get(), text.index());
    QVERIFY(text.editor->width() > narrow);
}

void tst_CRkTableDelegate::slotsCalledDirectly()
{
    CRkTableDelegate delegate;
    QSignalSpy changed(&delegate, &CRkTableDelegate::signalSpinBoxChanged);
    delegate.SpinBoxValueChanged(2.5);
    QCOMPARE(changed.count(), 1);
    QCOMPARE(changed.first(), QVariantList({2.5, QString()}));
    delegate.ComboBoxChanged(-1);
    delegate.LineEditFinished();
    delegate.LineEditTextChanged("text");
    QCOMPARE(changed.count(), 1);
}

void tst_CRkTableDelegate::descriptorTakenAwayMeanwhile_data()
{
    QTest::addColumn<int>("before");
    QTest::addColumn<QVariant>("after");
    QTest::addColumn<QVariant>("stored");
    QTest::newRow("number, gone") << 1 << QVariant() << QVariant(1.0);
    QTest::newRow("choice, gone") << 2 << QVariant() << QVariant("One lens");
    QTest::newRow("text, gone") << 3 << QVariant() << QVariant("1");
    QTest::newRow("number, now a choice") << 1 << descriptor(2) << QVariant(1.0);
    QTest::newRow("choice, now a text") << 2 << descriptor(3) << QVariant("One lens");
    QTest::newRow("text, now a number") << 3 << descriptor(1) << QVariant("1");
}

void tst_CRkTableDelegate::descriptorTakenAwayMeanwhile()
{
    QFETCH(int, before);
    QFETCH(QVariant, after);
    QFETCH(QVariant, stored);
    Cell cell(descriptor(before), 1);
    cell.model.setData(cell.index(), after, Qt::UserRole);
    QCOMPARE(cell.commit(), stored);
}

void tst_CRkTableDelegate::displayText_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("text");
    QTest::newRow("two decimals") << 12.34 << "12.34";
    QTest::newRow("one decimal") << 12.5 << "12.50";
    QTest::newRow("whole") << 3.0 << "3.00";
    QTest::newRow("rounded") << 2.999 << "3.00";
    QTest::newRow("negative") << -0.126 << "-0.13";
    QTest::newRow("no grouping") << 1234567.0 << "1234567.00";
    QTest::newRow("no exponent") << 1e9 << "1000000000.00";
}

void tst_CRkTableDelegate::displayText()
{
    QFETCH(double, value);
    QFETCH(QString, text);
    const CRkTableDelegate delegate;
    QCOMPARE(delegate.displayText(value, QLocale::c()), text);
    QCOMPARE(delegate.displayText(value, QLocale(QLocale::English)), text);
    QCOMPARE(delegate.displayText(value, QLocale(QLocale::Chinese)), text);
    QCOMPARE(delegate.displayText(value, QLocale(QLocale::German)),
             QString(text).replace('.', ','));
}

void tst_CRkTableDelegate::displayTextOfOtherTypes()
{
    const CRkTableDelegate delegate;
    const QStyledItemDelegate base;
    const QLocale locale(QLocale::English);
    for (const QVariant& value :
         {QVariant(7), QVariant("12.345"), QVariant(true), QVariant(QDate(2026, 6, 1)), QVariant()})
        QCOMPARE(delegate.displayText(value, locale), base.displayText(value, locale));
    QVERIFY(!delegate.displayText(std::nan(""), locale).isEmpty());
}

/// The way through a table: open, type, watch the signal, leave.
void tst_CRkTableDelegate::inATable()
{
    QTableWidget table(2, 2);
    CRkTableDelegate delegate;
    table.setItemDelegate(&delegate);
    for (int row = 0; row < 2; ++row) {
        auto* item = new QTableWidgetItem("5.00");
        item->setData(Qt::UserRole, QStringList(QString()));
        item->setStatusTip(QString("%1|1").arg(row));
        table.setItem(row, 1, item);
    }
    QSignalSpy changed(&delegate, &CRkTableDelegate::signalSpinBoxChanged);
    table.show();
    QApplication::setActiveWindow(&table);
    table.editItem(table.item(1, 1));
    auto* spinBox = table.findChild<QDoubleSpinBox*>("1|1");
    QVERIFY(spinBox);
    QCOMPARE(changed.count(), 0);
    spinBox->selectAll();
    QTest::keyClicks(spinBox, "7.5");
    QCOMPARE(changed.last(), QVariantList({7.5, "1|1"}));
    QTest::keyClick(spinBox, Qt::Key_Return);
    QTRY_COMPARE(table.item(1, 1)->data(Qt::EditRole), QVariant(7.5));
    QCOMPARE(table.item(0, 1)->text(), QString("5.00"));
    QTRY_VERIFY(!table.findChild<QDoubleSpinBox*>());
}

void tst_CRkTableDelegate::longTexts()
{
    const QString text(100000, 'm');
    Cell choice(QVariant::fromValue(RkEditorDescriptor{2, {{text, text}, {"b", "b"}}}), text, text);
    QCOMPARE(choice.as<QComboBox>()->currentIndex(), 0);
    QCOMPARE(choice.editor->objectName(), text);
    QCOMPARE(choice.commit(), QVariant(text));

    Cell edit(descriptor(3), text);
    QCOMPARE(edit.commit(), QVariant(text));
}

QTEST_MAIN(tst_CRkTableDelegate)
#include "tst_CRkTableDelegate.moc"
