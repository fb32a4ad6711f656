#pragma once

#include <QColor>
#include <QCommandLineParser>
#include <QSize>
#include <QStringList>
#include <QVector>

// What the command line asks for. Of all that is wrong with it the first is kept as the problem.
class Options
{
public:
    // With which an option goes; after a start with a settings file there is no name of one.
    enum Kind { Purity = 1, Gradient = 2, Grid = 4, Layout = 8, Walk = 16, Start = 32 };

    struct Range
    {
        int least;
        int most;
    };

    // The arguments begin with the program's name.
    explicit Options(const QStringList &arguments);

    // Empty if all is well up to now; one line otherwise.
    QString problem() const { return m_problem; }
    void setProblem(const QString &problem);
    // For the operator to read; empty if he has asked for neither help nor version.
    QString information() const;

    Kind kind() const { return m_kind; }
    bool isSet(const char *name) const { return m_parser.isSet(QLatin1String(name)); }

    // The values, or what stands for them where they are not given or wrong.
    QString text(const char *name) const { return m_parser.value(QLatin1String(name)); }
    int number(const char *name, const Range &range);
    // Two numbers with a character between.
    QSize pair(const char *name, QLatin1Char between, const Range &range);
    // The places of words in a list of them.
    int choice(const char *name, const QStringList &words);
    QVector<int> choices(const char *name, const QStringList &words);
    // One of the tool's seven colours.
    QColor pureColor(const char *name);
    QVector<int> pureColors(const char *name);
    // Any colour.
    QColor color(const char *name);

private:
    void addOptions();
    void findKind(const QStringList &words);
    void checkOptions();
    void refuse(const char *name, const QString &expected);

    QCommandLineParser m_parser;
    QString m_problem;
    Kind m_kind = Start;
};
