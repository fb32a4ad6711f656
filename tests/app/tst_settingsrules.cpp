#include "settingsrules.h"
#include "testsettings.h"

#include <QtTest>

namespace {

const QLatin1String key("/setting/value");

// A settings file whose "value" is spelled as given.
QByteArray withValue(const QByteArray &spelled)
{
    return "[setting]\nvalue=" + spelled + '\n';
}

} // namespace

class TestSettingsRules : public QObject
{
    Q_OBJECT

private slots:
    void positiveInt_data();
    void positiveInt();
    void nonZeroInt_data();
    void nonZeroInt();
    void missingValue_isTheDefault();

    void color_data();
    void color();
    void colorWrittenAsAColor_isReadBack();

    void store_writesTheValue_data();
    void store_writesTheValue();
    void store_ofWhatTheFileHoldsLeavesItAlone_data();
    void store_ofWhatTheFileHoldsLeavesItAlone();
    void store_ofAnotherValueReplacesIt_data();
    void store_ofAnotherValueReplacesIt();
    void store_ofWhatIsPendingChangesNothing();
};

void TestSettingsRules::positiveInt_data()
{
    QTest::addColumn<QByteArray>("spelled");
    QTest::addColumn<int>("expected");
    QTest::newRow("a value") << QByteArray("12") << 12;
    QTest::newRow("the smallest") << QByteArray("1") << 1;
    QTest::newRow("the largest") << QByteArray("2147483647") << 2147483647;
    QTest::newRow("quoted") << QByteArray("\"12\"") << 12;
    QTest::newRow("zero cannot be stored") << QByteArray("0") << 50;
    QTest::newRow("negative") << QByteArray("-1") << 50;
    QTest::newRow("very negative") << QByteArray("-2147483648") << 50;
    QTest::newRow("empty") << QByteArray() << 50;
    QTest::newRow("text") << QByteArray("fast") << 50;
    QTest::newRow("number and text") << QByteArray("12px") << 50;
    QTest::newRow("list") << QByteArray("12, 13") << 50;
    QTest::newRow("more than any integer") << QByteArray("99999999999999999999999") << 50;
    QTest::newRow("binary") << QByteArray(R"(@ByteArray(\0\x1\xff))") << 50;
    QTest::newRow("invalid") << QByteArray("@Invalid()") << 50;
    QTest::newRow("size") << QByteArray("@Size(12 12)") << 50;
}

void TestSettingsRules::positiveInt()
{
    QFETCH(const QByteArray, spelled);
    QFETCH(const int, expected);
    const TestSettings settings(withValue(spelled));
    QCOMPARE(SettingsRules::positiveInt(*settings.get(), key, 50), expected);
}

void TestSettingsRules::nonZeroInt_data()
{
    QTest::addColumn<QVariant>("stored");
    QTest::addColumn<int>("expected");
    QTest::newRow("zero") << QVariant(0) << 50;
    QTest::newRow("one") << QVariant(1) << 1;
    QTest::newRow("negative") << QVariant(-7) << -7;
    QTest::newRow("greatest") << QVariant(2147483647) << 2147483647;
    QTest::newRow("too great") << QVariant(QStringLiteral("2147483648")) << 50;
    QTest::newRow("too small") << QVariant(QStringLiteral("-2147483649")) << 50;
    QTest::newRow("text") << QVariant(QStringLiteral("x")) << 50;
    QTest::newRow("list") << QVariant(QStringList({QStringLiteral("1"), QStringLiteral("2")}))
                          << 50;
}

void TestSettingsRules::nonZeroInt()
{
    QFETCH(const QVariant, stored);
    QFETCH(const int, expected);
    TestSettings settings({{QStringLiteral("key"), stored}});
    QCOMPARE(SettingsRules::nonZeroInt(*settings.get(), latin1("/setting/key"), 50), expected);
}

void TestSettingsRules::missingValue_isTheDefault()
{
    const TestSettings settings;
    QCOMPARE(SettingsRules::positiveInt(*settings.get(), key, 50), 50);
    QCOMPARE(SettingsRules::nonZeroInt(*settings.get(), key, 255), 255);
    QVERIFY(!SettingsRules::color(*settings.get(), key).isValid());
}

void TestSettingsRules::color_data()
{
    QTest::addColumn<QByteArray>("spelled");
    QTest::addColumn<QColor>("expected");
    QTest::newRow("hexadecimal") << QByteArray("#00ff00") << QColor(Qt::green);
    QTest::newRow("name") << QByteArray("magenta") << QColor(Qt::magenta);
    QTest::newRow("name of another colour") << QByteArray("gold") << QColor(255, 215, 0);
    QTest::newRow("empty") << QByteArray() << QColor();
    QTest::newRow("text") << QByteArray("no colour") << QColor();
    QTest::newRow("list") << QByteArray("1, 2, 3") << QColor();
    QTest::newRow("number") << QByteArray("12") << QColor();
    QTest::newRow("binary") << QByteArray(R"(@ByteArray(\0\x1\xff))") << QColor();
    QTest::newRow("invalid") << QByteArray("@Invalid()") << QColor();
    QTest::newRow("size") << QByteArray("@Size(12 12)") << QColor();
    QTest::newRow("invalid colour")
        << QByteArray(R"(@Variant(\0\0\0\x43\0\xff\xff\0\0\0\0\0\0\0\0))") << QColor();
}

void TestSettingsRules::color()
{
    QFETCH(const QByteArray, spelled);
    QFETCH(const QColor, expected);
    const TestSettings settings(withValue(spelled));
    QCOMPARE(SettingsRules::color(*settings.get(), key), expected);
    QCOMPARE(SettingsRules::color(*settings.get(), key).isValid(), expected.isValid());
}

void TestSettingsRules::colorWrittenAsAColor_isReadBack()
{
    for (const QColor &color : {QColor(Qt::red), QColor(Qt::white), QColor(1, 2, 3, 4)}) {
        TestSettings settings;
        SettingsRules::store(*settings.get(), key, color);
        settings->sync();
        settings.reopen();
        QCOMPARE(SettingsRules::color(*settings.get(), key), color);
    }
}

void TestSettingsRules::store_writesTheValue_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("inFile");
    QTest::newRow("int") << QVariant(12) << QStringLiteral("12");
    QTest::newRow("zero") << QVariant(0) << QStringLiteral("0");
    QTest::newRow("true") << QVariant(true) << QStringLiteral("true");
    QTest::newRow("false") << QVariant(false) << QStringLiteral("false");
    QTest::newRow("text") << QVariant(QStringLiteral("灰度")) << QStringLiteral("灰度");
}

void TestSettingsRules::store_writesTheValue()
{
    QFETCH(const QVariant, value);
    QFETCH(const QString, inFile);
    TestSettings settings;
    SettingsRules::store(*settings.get(), key, value);
    QCOMPARE(settings.stored().value(QStringLiteral("value")).toString(), inFile);
}

void TestSettingsRules::store_ofWhatTheFileHoldsLeavesItAlone_data()
{
    QTest::addColumn<QByteArray>("spelled");
    QTest::addColumn<QVariant>("value");
    // With blanks, so that a rewrite shows.
    QTest::newRow("int") << QByteArray("  12") << QVariant(12);
    QTest::newRow("true") << QByteArray("  true") << QVariant(true);
    QTest::newRow("false") << QByteArray("  false") << QVariant(false);
    QTest::newRow("text") << QByteArray("  fast") << QVariant(QStringLiteral("fast"));
}

void TestSettingsRules::store_ofWhatTheFileHoldsLeavesItAlone()
{
    QFETCH(const QByteArray, spelled);
    QFETCH(const QVariant, value);
    const TestSettings settings(withValue(spelled));
    const QByteArray before = settings.bytes();
    SettingsRules::store(*settings.get(), key, value);
    settings->sync();

    QCOMPARE(settings.bytes(), before);
}

void TestSettingsRules::store_ofAnotherValueReplacesIt_data()
{
    QTest::addColumn<QByteArray>("spelled");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("inFile");
    QTest::newRow("another int") << QByteArray("12") << QVariant(13) << QStringLiteral("13");
    QTest::newRow("zero for text") << QByteArray("fast") << QVariant(0) << QStringLiteral("0");
    QTest::newRow("zero for nothing") << QByteArray() << QVariant(0) << QStringLiteral("0");
    QTest::newRow("zero for invalid")
        << QByteArray("@Invalid()") << QVariant(0) << QStringLiteral("0");
    QTest::newRow("zero for a list") << QByteArray("1, 2") << QVariant(0) << QStringLiteral("0");
    QTest::newRow("false for true")
        << QByteArray("true") << QVariant(false) << QStringLiteral("false");
    QTest::newRow("false for text")
        << QByteArray("fast") << QVariant(false) << QStringLiteral("false");
}

void TestSettingsRules::store_ofAnotherValueReplacesIt()
{
    QFETCH(const QByteArray, spelled);
    QFETCH(const QVariant, value);
    QFETCH(const QString, inFile);
    const TestSettings settings(withValue(spelled));
    SettingsRules::store(*settings.get(), key, value);
    QCOMPARE(settings.stored().value(QStringLiteral("value")).toString(), inFile);
}

void TestSettingsRules::store_ofWhatIsPendingChangesNothing()
{
    TestSettings settings;
    SettingsRules::store(*settings.get(), key, 1);
    SettingsRules::store(*settings.get(), key, 2);
    SettingsRules::store(*settings.get(), key, 2);
    QCOMPARE(settings.stored().value(QStringLiteral("value")).toInt(), 2);
}

QTEST_GUILESS_MAIN(TestSettingsRules)
#include "tst_settingsrules.moc"
