#pragma once

#include <QCoreApplication>
#include <QHash>
#include <QTranslator>

// A translation held in memory, in force from its creation to its end. It knows its
// words in every context.
class Dictionary : public QTranslator
{
public:
    explicit Dictionary(const QHash<QString, QString> &words)
        : m_words(words)
    {
        QCoreApplication::installTranslator(this);
    }

    bool isEmpty() const override { return false; }

    QString translate(const char * /*context*/, const char *sourceText,
                      const char * /*disambiguation*/, int /*n*/) const override
    {
        return m_words.value(QString::fromUtf8(sourceText));
    }

private:
    const QHash<QString, QString> m_words;
};
