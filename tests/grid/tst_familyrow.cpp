#include "familyrow.h"
#include "testsettings.h"

#include <QPushButton>
#include <QtTest>

namespace {

constexpr char letters[] = "HVLR";
const char *const names[] = {"Horizontal", "Vertical", "SlantLeft", "SlantRight"};

int familyOf(QChar letter)
{
    return QLatin1String(letters).indexOf(letter);
}

// A row over buttons of its own. Families are letters: H horizontal, V vertical, L slant left,
// R slant right.
struct RowRig
{
    RowRig()
    {
        for (QPushButton &button : buttons)
            button.setCheckable(true);
    }

    void toggle(const QString &families)
    {
        for (const QChar family : families)
            row.toggle(familyOf(family));
    }
    // The families whose keys are stored as true, "%1" being the family's name.
    QString stored(const char *key) const
    {
        TestSettings settings;
        row.store(*settings.get());
        const QVariantMap values = settings.stored();
        QString found;
        for (int family = 0; family < FamilyRow::count; ++family) {
            if (values.value(QString::fromLatin1(key).arg(QLatin1String(names[family]))).toBool())
                found += QLatin1Char(letters[family]);
        }
        return found;
    }
    // The checked buttons, a blank, and those remembered as pressed.
    QString state() const
    {
        QString checked;
        for (int family = 0; family < FamilyRow::count; ++family) {
            if (buttons[family].isChecked())
                checked += QLatin1Char(letters[family]);
        }
        if (stored("grid%1Checked") != checked)
            qFatal("another state is stored than that of the buttons");
        return checked + QLatin1Char(' ') + stored("is%1Press");
    }

    QPushButton buttons[FamilyRow::count];
    FamilyRow row{{&buttons[0], &buttons[1], &buttons[2], &buttons[3]}};
};

} // namespace

class TestFamilyRow : public QObject
{
    Q_OBJECT

private slots:
    void toggle_keepsTheLastPressedFamily_data();
    void toggle_keepsTheLastPressedFamily();
    void pressAlone_releasesTheOthers();
    void rememberAlone_leavesTheButtonsAndReleaseAllDoesNot();
    void pressFirstAlone_keepsTheFirstInTheirOrder();
    void clickPressed_clicksAndChecksTheRememberedOnes();
    void restore_givesTheLastCheckedFamily();
};

void TestFamilyRow::toggle_keepsTheLastPressedFamily_data()
{
    QTest::addColumn<QString>("expected");
    const std::pair<const char *, const char *> rows[] = {
        {"H", "H"},       {"HH", "H"},      {"VV", "V"},      {"LL", "L"},  {"RR", "R"},
        {"HVH", "V"},     {"HVV", "H"},     {"LRL", "R"},     {"HRR", "H"}, {"HVHH", "HV"},
        {"HVLR", "HVLR"}, {"HVLRHVL", "R"}, {"HVLRHVLR", "R"}};
    for (const auto &[toggled, expected] : rows)
        QTest::newRow(toggled) << QString::fromLatin1(expected);
}

void TestFamilyRow::toggle_keepsTheLastPressedFamily()
{
    QFETCH(const QString, expected);
    RowRig rig;
    rig.toggle(QString::fromLatin1(QTest::currentDataTag()));
    QCOMPARE(rig.state(), expected + QLatin1Char(' ') + expected);
}

void TestFamilyRow::pressAlone_releasesTheOthers()
{
    RowRig rig;
    for (const char *state : {"H H", "V V", "V V", "L L", "R R"}) {
        rig.toggle(QStringLiteral("LRHV"));
        rig.row.pressAlone(familyOf(QLatin1Char(*state)));
        QCOMPARE(rig.state(), QLatin1String(state));
    }
}

void TestFamilyRow::rememberAlone_leavesTheButtonsAndReleaseAllDoesNot()
{
    RowRig rig;
    rig.toggle(QStringLiteral("HVL"));
    rig.row.rememberAlone(3);
    QCOMPARE(rig.state(), QStringLiteral("HVL R"));
    rig.row.releaseAll();
    QCOMPARE(rig.state(), QStringLiteral(" "));
}

void TestFamilyRow::pressFirstAlone_keepsTheFirstInTheirOrder()
{
    const std::pair<const char *, const char *> rows[] = {
        {"VL", "V V"}, {"LV", "V V"}, {"RLVH", "H H"}, {"RL", "L L"}, {"R", "R R"}, {"", " "}};
    for (const auto &[toggled, expected] : rows) {
        RowRig rig;
        rig.toggle(QString::fromLatin1(toggled));
        rig.row.pressFirstAlone();
        QCOMPARE(rig.state(), QLatin1String(expected));
    }
}

void TestFamilyRow::clickPressed_clicksAndChecksTheRememberedOnes()
{
    RowRig rig;
    rig.toggle(QStringLiteral("VR"));
    rig.buttons[1].setChecked(false);
    QString clicked;
    for (int family = 0; family < FamilyRow::count; ++family)
        connect(&rig.buttons[family], &QPushButton::clicked, this,
                [&clicked, family] { clicked += QLatin1Char(letters[family]); });
    rig.row.clickPressed();
    QCOMPARE(clicked, QStringLiteral("VR"));
    QCOMPARE(rig.state(), QStringLiteral("VR VR"));
}

void TestFamilyRow::restore_givesTheLastCheckedFamily()
{
    const std::tuple<QStringList, const char *, int> rows[] = {
        {{}, " ", 0},
        {{QStringLiteral("gridHorizontalChecked"), QStringLiteral("isVerticalPress")}, "H V", 0},
        {{QStringLiteral("gridVerticalChecked"), QStringLiteral("isSlantLeftPress")}, "V L", 1},
        {{QStringLiteral("gridSlantLeftChecked"), QStringLiteral("isSlantRightPress")}, "L R", 2},
        {{QStringLiteral("gridSlantRightChecked"), QStringLiteral("isHorizontalPress")}, "R H", 3},
        {{QStringLiteral("gridVerticalChecked"), QStringLiteral("gridSlantLeftChecked")},
         "VL ",
         2}};
    for (const auto &[keys, state, last] : rows) {
        TestSettings settings;
        for (const QString &key : keys)
            settings->setValue(QStringLiteral("/setting/") + key, true);
        RowRig rig;
        rig.toggle(QStringLiteral("HVLR")); // what was there before goes
        QCOMPARE(rig.row.restore(*settings.get()), last);
        QCOMPARE(rig.state(), QLatin1String(state));
    }
}

QTEST_MAIN(TestFamilyRow)
#include "tst_familyrow.moc"
