#pragma once

#include <QDir>
#include <QFile>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>

// Runs TarnTestPattern in a scratch folder of its own.
class PatternProcess
{
public:
    // The arguments in one text, with blanks between; the exit code.
    int run(const QString &arguments)
    {
        return start(QStringLiteral(TARN_PATTERN_EXECUTABLE),
                     arguments.split(QLatin1Char(' '), Qt::SkipEmptyParts));
    }

    int start(const QString &program, const QStringList &arguments)
    {
        QProcess process;
        process.setWorkingDirectory(m_folder.path());
        process.setProcessEnvironment(environment);
        process.start(program, arguments);
        if (!process.waitForFinished(60000) || process.exitStatus() != QProcess::NormalExit)
            return -1;
        output = process.readAllStandardOutput();
        errors = process.readAllStandardError();
        return process.exitCode();
    }

    QString path(const QString &name) const { return m_folder.filePath(name); }
    QStringList files() const
    {
        return QDir(m_folder.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot);
    }
    QImage image(const QString &name) const { return QImage(path(name)); }

    QByteArray bytes(const QString &name) const
    {
        QFile file(path(name));
        file.open(QIODevice::ReadOnly);
        return file.readAll();
    }

    void add(const QString &name, const QByteArray &content) const
    {
        QFile file(path(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
            qFatal("no file");
    }

    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    QByteArray output; // of the latest run
    QByteArray errors;

private:
    QTemporaryDir m_folder;
};
