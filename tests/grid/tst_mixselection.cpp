#include "mixselection.h"
#include "testsettings.h"

#include <QSet>
#include <QtTest>

class TestMixSelection : public QObject
{
    Q_OBJECT

private slots:
    void newSelection_isEmpty();
    void entries_holdEveryItemOnceInTheOrderOfTheirKeys();
    void selection_isStoredInverted();
    void storedSelection_ofNothingIsEverything();
    void storedSelection_ofWrongValuesIsStillASelection();
    void coloursAndFamilies_areInTheirOrder();
};

void TestMixSelection::newSelection_isEmpty()
{
    MixSelection selection;
    QVERIFY(selection.isEmpty());
    QVERIFY(selection.colors().isEmpty());
    for (int item = 0; item < MixSelection::itemCount; ++item) {
        selection.set(MixSelection::Item(item), true);
        QVERIFY(!selection.isEmpty());
        selection.set(MixSelection::Item(item), false);
    }
    QVERIFY(selection.isEmpty());
}

void TestMixSelection::entries_holdEveryItemOnceInTheOrderOfTheirKeys()
{
    QSet<int> items;
    QStringList keys;
    for (const MixSelection::Entry &entry : MixSelection::entries) {
        items.insert(entry.item);
        keys << entry.key;
    }
    QCOMPARE(items.size(), 11);
    QStringList sorted = keys;
    sorted.sort();
    QCOMPARE(keys, sorted);
}

void TestMixSelection::selection_isStoredInverted()
{
    using M = MixSelection;
    const std::pair<const char *, int> keys[] = {
        {"checkBoxRed", M::Red},       {"checkBoxGreen", M::Green},   {"checkBoxBlue", M::Blue},
        {"checkBoxWhite", M::White},   {"checkBoxYellow", M::Yellow}, {"checkBoxCyan", M::Cyan},
        {"checkBoxPurple", M::Purple}, {"checkBoxH", M::Horizontal},  {"checkBoxV", M::Vertical},
        {"checkBoxSL", M::SlantLeft},  {"checkBoxSR", M::SlantRight},
    };
    for (const auto &[key, item] : keys) {
        TestSettings settings({{QString::fromLatin1(key), true}});
        MixSelection selection = MixSelection::stored(settings.get());
        for (int other = 0; other < MixSelection::itemCount; ++other)
            QCOMPARE(selection.contains(MixSelection::Item(other)), other != item);

        TestSettings written;
        selection.store(*written.get());
        const QVariantMap stored = written.stored();
        QCOMPARE(stored.size(), 11);
        for (auto value = stored.cbegin(); value != stored.cend(); ++value)
            QCOMPARE(value.value().toString() == QStringLiteral("true"),
                     value.key() == QLatin1String(key));
    }
}

void TestMixSelection::storedSelection_ofNothingIsEverything()
{
    TestSettings settings;
    for (const QSettings *source : {settings.get(), static_cast<QSettings *>(nullptr)}) {
        const MixSelection selection = MixSelection::stored(source);
        QCOMPARE(selection.colors().size(), 7);
        QCOMPARE(selection.families().size(), 4);
    }
}

void TestMixSelection::storedSelection_ofWrongValuesIsStillASelection()
{
    TestSettings settings({{QStringLiteral("checkBoxRed"), QStringLiteral("false")},
                           {QStringLiteral("checkBoxGreen"), QStringList{QStringLiteral("a")}},
                           {QStringLiteral("checkBoxBlue"), 7},
                           {QStringLiteral("checkBoxH"), QByteArray("\0\1", 2)},
                           {QStringLiteral("checkBoxV"), QRect(1, 2, 3, 4)}});
    const MixSelection selection = MixSelection::stored(settings.get());
    QVERIFY(selection.contains(MixSelection::Red));
    QVERIFY(selection.contains(MixSelection::Green));
    QVERIFY(!selection.contains(MixSelection::Blue));
    QVERIFY(selection.contains(MixSelection::White));
}

void TestMixSelection::coloursAndFamilies_areInTheirOrder()
{
    MixSelection selection;
    using M = MixSelection;
    for (const M::Item item : {M::Purple, M::Yellow, M::White, M::Red, M::SlantRight, M::Vertical})
        selection.set(item, true);

    QCOMPARE(selection.colors(), (QVector<QColor>{Qt::red, Qt::white, Qt::yellow, Qt::magenta}));
    QCOMPARE(selection.families(),
             (QVector<LineFamily::Direction>{LineFamily::Vertical, LineFamily::SlantRight}));
}

QTEST_MAIN(TestMixSelection)
#include "tst_mixselection.moc"
