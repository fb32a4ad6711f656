#pragma once

#include <QCoreApplication>
#include <QHash>
#include <QTranslator>

// A translation held in memory, in force from its creation to its end: of some words in every
// context, or of every text of one context or of all.
class Dictionary : public QTranslator
{
public:
    explicit Dictionary(const QHash<QString, QString> &words)
        : m_words(words)
    {
        QCoreApplication::installTranslator(this);
    }

    // Every text gets the mark behind it.
    explicit Dictionary(const QString &mark, const char *context = nullptr)
        : m_mark(mark)
        , m_context(context)
    {
        QCoreApplication::installTranslator(this);
    }

    bool isEmpty() const override { return false; }

    QString translate(const char *context, const char *sourceText, const char * /*disambiguation*/,
                      int /*n*/) const override
    {
        const QString text = QString::fromUtf8(sourceText);
        if (m_mark.isEmpty())
            return m_words.value(text);
        return !m_context || qstrcmp(context, m_context) == 0 ? text + m_mark : QString();
    }

private:
    const QHash<QString, QString> m_words;
    const QString m_mark;
    const char *const m_context = nullptr;
};
