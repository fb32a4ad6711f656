#include "purityrig.h"

#include <QFile>
#include <QSettings>
#include <QTemporaryDir>
#include <QtTest>

PurityRig::PurityRig(const QByteArray &fileContents)
{
    QFile file(settings.path());
    if (!file.open(QIODevice::WriteOnly) || file.write(fileContents) != fileContents.size())
        qFatal("cannot write the settings file");
    file.close();
    settings->sync();
    build();
}

void PurityRig::build()
{
    panel = std::make_unique<ScrPurityCtrlDialog>(&canvas, settings.get(), nullptr);
    canvas.setDrawer(panel->getDrawer());
}

void PurityRig::restart()
{
    canvas.setDrawer(nullptr);
    panel.reset();
    settings->sync();
    settings.reopen();
    build();
}

QAbstractButton *PurityRig::colorButton(int index) const
{
    static const char *const names[] = {"radioButtonRed",   "radioButtonGreen",  "radioButtonBlue",
                                        "radioButtonWhite", "radioButtonYellow", "radioButtonCyan",
                                        "radioButtonPurple"};
    return child<QAbstractButton>(names[index]);
}

void PurityRig::click(QAbstractButton *button) const
{
    // At the left, where a radio button has its indicator.
    QTest::mouseClick(button, Qt::LeftButton, Qt::NoModifier, QPoint(8, button->height() / 2));
}

QTimer *PurityRig::timer() const
{
    QTimer *running = nullptr;
    const QList<QTimer *> timers =
        panel->findChildren<QTimer *>(QString(), Qt::FindDirectChildrenOnly);
    for (QTimer *timer : timers) {
        if (timer->isActive() && running)
            qFatal("the panel has more than one running timer");
        if (timer->isActive())
            running = timer;
    }
    return running;
}

int PurityRig::tick() const
{
    panel->slot_AutoTimerFinished();
    return autoSpinBox()->value();
}

bool PurityRig::hasControlsOf(bool automaticMode) const
{
    const QWidget *automaticOnly[] = {beginButton(), speedSlider(), speedSpinBox(), autoSpinBox()};
    const QWidget *manualOnly[] = {greySlider(), greySpinBox()};
    for (const QWidget *widget : automaticOnly) {
        if (widget->isEnabled() != automaticMode)
            return false;
    }
    for (const QWidget *widget : manualOnly) {
        if (widget->isEnabled() == automaticMode)
            return false;
    }
    return automatic()->isChecked() == automaticMode && manual()->isChecked() != automaticMode;
}

QRgb PurityRig::shownColor()
{
    const QImage image = canvas.painted();
    return image.pixel(image.width() / 2, image.height() / 2);
}

bool PurityRig::fileExists() const
{
    return QFile::exists(settings.path());
}

QByteArray PurityRig::fileBytes() const
{
    QFile file(settings.path());
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QVariant PurityRig::inFile(const QString &key) const
{
    // A copy, because Qt shares what is pending among all settings objects of one file.
    const QTemporaryDir folder;
    QFile copy(folder.filePath(QStringLiteral("copy.ini")));
    if (!copy.open(QIODevice::WriteOnly))
        return {};
    copy.write(fileBytes());
    copy.close();
    const QSettings file(copy.fileName(), QSettings::IniFormat);
    return file.value(QStringLiteral("setting/") + key);
}

QString PurityTranslator::translate(const char * /*context*/, const char *sourceText,
                                    const char * /*disambiguation*/, int /*n*/) const
{
    static const char *const texts[][2] = {
        {"红", "R"},       {"绿", "G"},      {"蓝", "B"},      {"白", "W"},
        {"黄", "Y"},       {"青", "C"},      {"紫", "P"},      {"当前灰度", "Now"},
        {"速度", "Speed"}, {"灰度", "Grey"}, {"自动", "Auto"}, {"手动", "Hand"},
        {"开始", "Go"},    {"暂停", "Stop"},
    };
    QString text;
    for (const auto &entry : texts) {
        if (qstrcmp(sourceText, entry[0]) == 0)
            text = QString::fromLatin1(entry[1]);
    }
    return m_lengthy && !text.isEmpty() ? text + QStringLiteral(" and on").repeated(9) : text;
}
