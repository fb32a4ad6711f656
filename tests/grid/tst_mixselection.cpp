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
    void storedSelection_isInverted_data();
    void storedSelection_isInverted();
    void storedSelection_ofNothingIsEverything();
    void storedSelection_ofWrongValuesIsStillASelection();
    void store_writesTheElevenKeysInverted();
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

void TestMixSelection::storedSelection_isInverted_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<int>("item");
    using M = MixSelection;
    const std::pair<const char *, int> rows[] = {
        {"checkBoxRed", M::Red},       {"checkBoxGreen", M::Green},   {"checkBoxBlue", M::Blue},
        {"checkBoxWhite", M::White},   {"checkBoxYellow", M::Yellow}, {"checkBoxCyan", M::Cyan},
        {"checkBoxPurple", M::Purple}, {"checkBoxH", M::Horizontal},  {"checkBoxV", M::Vertical},
        {"checkBoxSL", M::SlantLeft},  {"checkBoxSR", M::SlantRight},
    };
    for (const auto &[key, item] : rows)
        QTest::newRow(key) << QString::fromLatin1(key) << item;
}

void TestMixSelection::storedSelection_isInverted()
{
    QFETCH(const QString, key);
    QFETCH(const int, item);
    TestSettings settings({{key, true}});
    const MixSelection selection = MixSelection::stored(settings.get());
    for (int other = 0; other < MixSelection::itemCount; ++other)
        QCOMPARE(selection.contains(MixSelection::Item(other)), other != item);
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
    settings.reopen();
    const MixSelection selection = MixSelection::stored(settings.get());
    QVERIFY(selection.contains(MixSelection::Red));
    QVERIFY(selection.contains(MixSelection::Green));
    QVERIFY(!selection.contains(MixSelection::Blue));
    QVERIFY(selection.contains(MixSelection::White));
}

void TestMixSelection::store_writesTheElevenKeysInverted()
{
    TestSettings settings;
    MixSelection selection;
    selection.set(MixSelection::Cyan, true);
    selection.set(MixSelection::SlantRight, true);
    selection.store(*settings.get());

    const QVariantMap stored = settings.stored();
    QCOMPARE(stored.size(), 11);
    for (auto value = stored.cbegin(); value != stored.cend(); ++value) {
        const bool selected = value.key() == QStringLiteral("checkBoxCyan")
                              || value.key() == QStringLiteral("checkBoxSR");
        QCOMPARE(value.value().toString(),
                 selected ? QStringLiteral("false") : QStringLiteral("true"));
    }
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
