#include <QFile>
#include <QMap>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QXmlStreamReader>
#include <QtTest>

namespace {

// A text of the program: the class that shows it, and the text in the code.
using Source = QPair<QString, QString>;

const QString chinese = QStringLiteral("TarnTestTool_zh_CN.ts");

// The places for values in a text, in order.
QStringList places(const QString &text)
{
    static const QRegularExpression place(QStringLiteral("%L?\\d+|%n|&(?=\\w)"));
    QStringList found;
    for (auto match = place.globalMatch(text); match.hasNext();)
        found.append(match.next().captured());
    found.sort();
    return found;
}

} // namespace

// The translations in the sources: every language has every text.
class TestTranslations : public QObject
{
    Q_OBJECT

private slots:
    void everyLanguage_hasTheSameTexts_data() { languages(); }
    void everyLanguage_hasTheSameTexts();
    void everyText_isTranslated_data() { languages(); }
    void everyText_isTranslated();
    void everyTranslation_keepsThePlacesForValues_data() { languages(); }
    void everyTranslation_keepsThePlacesForValues();
    void everyTextInTheCode_isTaken();

private:
    static void languages();
    static QString path(const QString &fileName);
    void read(const QString &path);

    QMap<Source, QString> m_translations;
    QStringList m_unfinished;
};

void TestTranslations::languages()
{
    QTest::addColumn<QString>("file");
    for (const char *language : {"zh_CN", "en", "fr", "de", "es", "ru"})
        QTest::newRow(language)
            << QStringLiteral("TarnTestTool_%1.ts").arg(QLatin1String(language));
}

QString TestTranslations::path(const QString &fileName)
{
    return QStringLiteral(TARN_SOURCES "/translations/") + fileName;
}

void TestTranslations::read(const QString &path)
{
    m_translations.clear();
    m_unfinished.clear();
    QFile file(path);
    QVERIFY2(file.open(QIODevice::ReadOnly), qPrintable(path));
    QXmlStreamReader xml(&file);
    Source source;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == QLatin1String("name")) {
            source.first = xml.readElementText();
        } else if (xml.name() == QLatin1String("source")) {
            source.second = xml.readElementText();
        } else if (xml.name() == QLatin1String("translation")) {
            if (xml.attributes().hasAttribute(QLatin1String("type")))
                m_unfinished.append(source.second);
            m_translations.insert(source, xml.readElementText());
        }
    }
    QVERIFY2(!xml.hasError(), qPrintable(xml.errorString()));
    QVERIFY(!m_translations.isEmpty());
}

void TestTranslations::everyLanguage_hasTheSameTexts()
{
    QFETCH(QString, file);
    read(path(chinese));
    const QList<Source> expected = m_translations.keys();
    read(path(file));
    QCOMPARE(m_translations.keys(), expected);
}

void TestTranslations::everyText_isTranslated()
{
    QFETCH(QString, file);
    read(path(file));
    QCOMPARE(m_unfinished, QStringList());
    static const QRegularExpression han(QStringLiteral("\\p{Han}"));
    for (auto text = m_translations.cbegin(); text != m_translations.cend(); ++text) {
        QVERIFY2(!text.value().trimmed().isEmpty(), qPrintable(text.key().second));
        if (file != chinese)
            QVERIFY2(!text.value().contains(han), qPrintable(text.value()));
    }
}

void TestTranslations::everyTranslation_keepsThePlacesForValues()
{
    QFETCH(QString, file);
    read(path(file));
    for (auto text = m_translations.cbegin(); text != m_translations.cend(); ++text)
        QCOMPARE(places(text.value()), places(text.key().second));
}

// The file as it would be after an update from the code.
void TestTranslations::everyTextInTheCode_isTaken()
{
    read(path(chinese));
    const QList<Source> taken = m_translations.keys();
    const QTemporaryDir folder;
    const QString updated = folder.filePath(chinese);
    QVERIFY(QFile::copy(path(chinese), updated));
    const QStringList arguments = QStringLiteral(TARN_LUPDATE_ARGUMENTS).split(QLatin1Char(' '))
                                  << updated;
    QProcess lupdate;
    lupdate.setWorkingDirectory(QStringLiteral(TARN_SOURCES));
    lupdate.start(QStringLiteral(TARN_LUPDATE), arguments);
    QVERIFY2(lupdate.waitForFinished(), qPrintable(lupdate.errorString()));
    QCOMPARE(lupdate.exitCode(), 0);

    read(updated);
    QCOMPARE(m_translations.keys(), taken);
}

QTEST_GUILESS_MAIN(TestTranslations)
#include "tst_translations.moc"
