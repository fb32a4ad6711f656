#include "dictionary.h"
#include "swatchbutton.h"
#include "swatchrow.h"

#include <QSignalSpy>
#include <QtTest>

#include <memory>
#include <utility>

namespace {

constexpr int count = 7;

constexpr Qt::GlobalColor colors[count] = {Qt::red,    Qt::green, Qt::blue,   Qt::white,
                                           Qt::yellow, Qt::cyan,  Qt::magenta};

// Seven swatches in a row.
struct Row
{
    explicit Row(int side = 42)
    {
        SwatchRow::Buttons buttons{};
        for (QAbstractButton *&button : buttons) {
            button = new SwatchButton(&panel);
            button->resize(side, 42);
            all << button;
        }
        row = std::make_unique<SwatchRow>(buttons, &panel);
    }

    QStringList texts() const
    {
        QStringList texts;
        for (const QAbstractButton *button : all)
            texts << button->text();
        return texts;
    }

    QWidget panel;
    QVector<QAbstractButton *> all;
    std::unique_ptr<SwatchRow> row;
};

QStringList sourceNames()
{
    return {QStringLiteral("红"), QStringLiteral("绿"), QStringLiteral("蓝"), QStringLiteral("白"),
            QStringLiteral("黄"), QStringLiteral("青"), QStringLiteral("紫")};
}

} // namespace

class TestSwatchRow : public QObject
{
    Q_OBJECT

private slots:
    void button_isFoundByItsColour_data();
    void button_isFoundByItsColour();
    void otherColour_hasNoButton_data();
    void otherColour_hasNoButton();

    void checking_saysItOnce_data();
    void checking_saysItOnce();
    void click_onAnUncheckedButtonSaysItTwice_data();
    void click_onAnUncheckedButtonSaysItTwice();
    void click_onTheCheckedButtonSaysItOnce();
    void row_isExclusive();
    void row_leavesOtherButtonsOfThePanelAlone();

    void names_areThoseOfTheInterfaceLanguage();
    void nameThatDoesNotFit_isToldByToolTipAndAccessibleName();
};

void TestSwatchRow::button_isFoundByItsColour_data()
{
    QTest::addColumn<int>("index");
    QTest::newRow("red") << 0;
    QTest::newRow("green") << 1;
    QTest::newRow("blue") << 2;
    QTest::newRow("white") << 3;
    QTest::newRow("yellow") << 4;
    QTest::newRow("cyan") << 5;
    QTest::newRow("purple") << 6;
}

void TestSwatchRow::button_isFoundByItsColour()
{
    QFETCH(const int, index);
    const Row row;
    QCOMPARE(row.row->button(colors[index]), row.all.at(index));
}

void TestSwatchRow::otherColour_hasNoButton_data()
{
    QTest::addColumn<QColor>("color");
    QTest::newRow("black") << QColor(Qt::black);
    QTest::newRow("translucent red") << QColor(255, 0, 0, 254);
    QTest::newRow("invalid") << QColor();
    QTest::newRow("dark cyan") << QColor(Qt::darkCyan);
}

void TestSwatchRow::otherColour_hasNoButton()
{
    QFETCH(const QColor, color);
    const Row row;
    QVERIFY(!row.row->button(color));
}

void TestSwatchRow::checking_saysItOnce_data()
{
    button_isFoundByItsColour_data();
}

void TestSwatchRow::checking_saysItOnce()
{
    QFETCH(const int, index);
    const Row row;
    row.all.at((index + 1) % count)->setChecked(true);
    QSignalSpy selected(row.row.get(), &SwatchRow::selected);
    row.all.at(index)->setChecked(true);

    QCOMPARE(selected.count(), 1);
    QCOMPARE(selected.first().first().toInt(), index);
}

void TestSwatchRow::click_onAnUncheckedButtonSaysItTwice_data()
{
    button_isFoundByItsColour_data();
}

void TestSwatchRow::click_onAnUncheckedButtonSaysItTwice()
{
    QFETCH(const int, index);
    const Row row;
    QSignalSpy selected(row.row.get(), &SwatchRow::selected);
    QTest::mouseClick(row.all.at(index), Qt::LeftButton);

    QCOMPARE(selected.count(), 2);
    QCOMPARE(selected.at(0).first().toInt(), index);
    QCOMPARE(selected.at(1).first().toInt(), index);
}

void TestSwatchRow::click_onTheCheckedButtonSaysItOnce()
{
    const Row row;
    row.all.at(4)->setChecked(true);
    QSignalSpy selected(row.row.get(), &SwatchRow::selected);
    QTest::mouseClick(row.all.at(4), Qt::LeftButton);

    QCOMPARE(selected.count(), 1);
    QCOMPARE(selected.first().first().toInt(), 4);
}

void TestSwatchRow::row_isExclusive()
{
    const Row row;
    for (int chosen = 0; chosen < count; ++chosen) {
        row.all.at(chosen)->setChecked(true);
        for (int index = 0; index < count; ++index)
            QCOMPARE(row.all.at(index)->isChecked(), index == chosen);
    }
    row.all.at(6)->setChecked(false);
    QVERIFY(row.all.at(6)->isChecked());
}

void TestSwatchRow::row_leavesOtherButtonsOfThePanelAlone()
{
    Row row;
    QRadioButton mode(&row.panel);
    mode.setChecked(true);
    row.all.at(2)->setChecked(true);
    QVERIFY(mode.isChecked());
    mode.setChecked(true);
    QVERIFY(row.all.at(2)->isChecked());
}

void TestSwatchRow::names_areThoseOfTheInterfaceLanguage()
{
    const Row row;
    row.row->retranslate();
    QCOMPARE(row.texts(), sourceNames());
    {
        const Dictionary marked(QStringLiteral("!"));
        row.row->retranslate();
        for (int index = 0; index < count; ++index) {
            const QString name = sourceNames().at(index) + QLatin1Char('!');
            QCOMPARE(row.all.at(index)->text(), name);
            QCOMPARE(row.all.at(index)->toolTip(), name);
            QCOMPARE(row.all.at(index)->accessibleName(), name);
        }
    }
    row.row->retranslate();
    QCOMPARE(row.texts(), sourceNames());
}

void TestSwatchRow::nameThatDoesNotFit_isToldByToolTipAndAccessibleName()
{
    const Row narrow(42);
    const Row wide(400);
    const QString rest = QStringLiteral(" wide").repeated(4);
    const Dictionary marked(rest);
    narrow.row->retranslate();
    wide.row->retranslate();

    for (int index = 0; index < count; ++index) {
        const QAbstractButton *button = narrow.all.at(index);
        QVERIFY(button->fontMetrics().boundingRect(button->text()).width() <= button->width());
        QCOMPARE(button->toolTip(), sourceNames().at(index) + rest);
        QCOMPARE(button->accessibleName(), sourceNames().at(index) + rest);
        QCOMPARE(wide.all.at(index)->text(), wide.all.at(index)->accessibleName());
    }
}

QTEST_MAIN(TestSwatchRow)
#include "tst_swatchrow.moc"
