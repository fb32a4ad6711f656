#include "dictionary.h"
#include "rows.h"
#include "swatchbutton.h"
#include "swatchrow.h"

#include <QSignalSpy>
#include <QtTest>

#include <memory>

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
    void button_isFoundByItsColour();
    void otherColour_hasNoButton_data();
    void otherColour_hasNoButton();

    void checking_saysItOnce();
    void click_saysItTwiceOfAnUncheckedButtonAndOnceOfAChecked();
    void row_isExclusive();
    void row_leavesOtherButtonsOfThePanelAlone();

    void names_areThoseOfTheInterfaceLanguage();
    void nameThatDoesNotFit_isToldByToolTipAndAccessibleName();
};

void TestSwatchRow::button_isFoundByItsColour()
{
    const Row row;
    for (int index = 0; index < count; ++index)
        QCOMPARE(row.row->button(colors[index]), row.all.at(index));
}

void TestSwatchRow::otherColour_hasNoButton_data()
{
    addRows<QColor>("color", {{"black", Qt::black},
                              {"translucent red", {255, 0, 0, 254}},
                              {"invalid", QColor()},
                              {"dark cyan", Qt::darkCyan}});
}

void TestSwatchRow::otherColour_hasNoButton()
{
    QFETCH(const QColor, color);
    const Row row;
    QVERIFY(!row.row->button(color));
}

void TestSwatchRow::checking_saysItOnce()
{
    const Row row;
    QSignalSpy selected(row.row.get(), &SwatchRow::selected);
    for (int index = 0; index < count; ++index) {
        row.all.at(index)->setChecked(true);
        QCOMPARE(selected, (QList<QVariantList>{{index}}));
        selected.clear();
    }
}

void TestSwatchRow::click_saysItTwiceOfAnUncheckedButtonAndOnceOfAChecked()
{
    const Row row;
    QSignalSpy selected(row.row.get(), &SwatchRow::selected);
    for (int index = 0; index < count; ++index) {
        QTest::mouseClick(row.all.at(index), Qt::LeftButton);
        QCOMPARE(selected, (QList<QVariantList>{{index}, {index}}));
        selected.clear();
        QTest::mouseClick(row.all.at(index), Qt::LeftButton);
        QCOMPARE(selected, (QList<QVariantList>{{index}}));
        selected.clear();
    }
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
