#pragma once

#include <QCoreApplication>
#include <QStringList>
#include <QTranslator>
#include <QtTest>

// One of the program's own translations, in force from its creation to its end.
class ShippedTranslation
{
public:
    // "zh_CN", "en" and so on.
    explicit ShippedTranslation(const QString &language)
        : m_isInstalled(
            m_translator.load(QStringLiteral(TARN_TRANSLATIONS "/TarnTestTool_%1.qm").arg(language))
            && QCoreApplication::installTranslator(&m_translator))
    { }

    bool isInstalled() const { return m_isInstalled; }

    static QStringList languages()
    {
        return {QStringLiteral("zh_CN"), QStringLiteral("en"), QStringLiteral("fr"),
                QStringLiteral("de"),    QStringLiteral("es"), QStringLiteral("ru")};
    }

    // Adds the column "language" with a row for each.
    static void addRows()
    {
        QTest::addColumn<QString>("language");
        const QStringList all = languages();
        for (const QString &language : all)
            QTest::newRow(qPrintable(language)) << language;
    }

private:
    QTranslator m_translator; // goes out of force when it is destroyed
    const bool m_isInstalled;
};
