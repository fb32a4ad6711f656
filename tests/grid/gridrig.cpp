#include "gridrig.h"

#include <QFile>
#include <QSettings>
#include <QTemporaryDir>
#include <QtTest>

namespace {

constexpr int distance = 10; // between the lines, as the drawer starts

struct NamedFamily
{
    char letter;
    const char *button;
    const char *pressedKey;
};

constexpr NamedFamily families[] = {
    {'H', "radioButtonHorizontal", "isHorizontalPress"},
    {'V', "radioButtonVertical", "isVerticalPress"},
    {'L', "radioButtonSlantLeft", "isSlantLeftPress"},
    {'R', "radioButtonSlantRight", "isSlantRightPress"},
};

// Whether a line of the families runs through a pixel that lies away from the border.
bool isLit(int set, int offset, const QPoint &pixel, int side)
{
    const int positions[] = {pixel.y(), pixel.x(), pixel.x() + pixel.y(),
                             side + pixel.x() - pixel.y()};
    for (int family = 0; family < 4; ++family) {
        if ((set & (1 << family)) != 0 && (positions[family] - offset) % distance == 0)
            return true;
    }
    return false;
}

bool isPicture(const QImage &image, int set, int offset, Shown *shown)
{
    bool hasBackground = false;
    bool hasLine = false;
    const QRect inner = image.rect().adjusted(distance, distance, -distance, -distance);
    for (int y = inner.top(); y <= inner.bottom(); ++y) {
        for (int x = inner.left(); x <= inner.right(); ++x) {
            const bool lit = isLit(set, offset, QPoint(x, y), image.width());
            QRgb &expected = lit ? shown->line : shown->background;
            bool &known = lit ? hasLine : hasBackground;
            if (!known)
                expected = image.pixel(x, y);
            known = true;
            if (image.pixel(x, y) != expected)
                return false;
        }
    }
    if (!hasLine)
        shown->line = shown->background;
    return set == 0 || shown->line != shown->background;
}

} // namespace

GridRig::GridRig(const QByteArray &fileContents)
{
    QFile file(settings.path());
    if (!file.open(QIODevice::WriteOnly) || file.write(fileContents) != fileContents.size())
        qFatal("cannot write the settings file");
    file.close();
    settings->sync();
    build();
}

void GridRig::build()
{
    panel = std::make_unique<ScrGridCtrlDialog>(&canvas, settings.get(), nullptr);
    drawer = static_cast<GridDrawer *>(panel->getDrawer());
    canvas.setDrawer(drawer);
}

void GridRig::restart()
{
    canvas.setDrawer(nullptr);
    panel.reset();
    settings->sync();
    settings.reopen();
    build();
}

QAbstractButton *GridRig::colorButton(int index) const
{
    static const char *const names[] = {"radioButtonRed",   "radioButtonGreen",  "radioButtonBlue",
                                        "radioButtonWhite", "radioButtonYellow", "radioButtonCyan",
                                        "radioButtonPurple"};
    return child<QAbstractButton>(names[index]);
}

QPushButton *GridRig::familyButton(QChar family) const
{
    for (const NamedFamily &each : families) {
        if (family == QLatin1Char(each.letter))
            return child<QPushButton>(each.button);
    }
    qFatal("no family");
    return nullptr;
}

QPushButton *GridRig::begin(int index) const
{
    const auto buttons = panel->findChildren<QPushButton *>(QStringLiteral("beginPushBtn"));
    if (buttons.size() != 2)
        qFatal("there are not two buttons of this name");
    return buttons.at(index);
}

void GridRig::click(QAbstractButton *button) const
{
    // At the left, where a check box has its indicator.
    QTest::mouseClick(button, Qt::LeftButton, Qt::NoModifier, QPoint(8, button->height() / 2));
}

void GridRig::clickFamilies(const char *letters) const
{
    for (; *letters; ++letters)
        click(familyButton(QLatin1Char(*letters)));
}

QTimer *GridRig::timer() const
{
    const auto timers = panel->findChildren<QTimer *>(QString(), Qt::FindDirectChildrenOnly);
    if (timers.size() != 1)
        qFatal("the panel has not one timer");
    return timers.first();
}

void GridRig::tick(int times) const
{
    for (int i = 0; i < times; ++i)
        panel->slot_TimerOut();
}

QString GridRig::checked() const
{
    QString letters;
    for (const NamedFamily &family : families) {
        if (child<QPushButton>(family.button)->isChecked())
            letters += QLatin1Char(family.letter);
    }
    return letters;
}

QString GridRig::pressed() const
{
    QString letters;
    for (const NamedFamily &family : families) {
        if (saved(family.pressedKey).toBool())
            letters += QLatin1Char(family.letter);
    }
    return letters;
}

QString GridRig::mode() const
{
    QStringList modes;
    if (saved("gridIsOldTest").toBool())
        modes << QStringLiteral("aging");
    if (saved("gridIsMix").toBool())
        modes << QStringLiteral("merged");
    return modes.isEmpty() ? QStringLiteral("scrolling") : modes.join(QLatin1Char(' '));
}

QVariant GridRig::saved(const char *key) const
{
    panel->saveGridBaseInfo();
    return settings->value(QStringLiteral("/setting/") + QLatin1String(key));
}

int GridRig::runControls() const
{
    int enabled = 0;
    const QWidget *controls[] = {greySlider(), greySpinBox(), speedSlider(), speedSpinBox(),
                                 pause()};
    for (const QWidget *control : controls)
        enabled += control->isEnabled() ? 1 : 0;
    if (enabled == 0)
        return 0;
    return enabled == 5 ? 1 : -1;
}

Shown GridRig::shown()
{
    const QImage image = canvas.painted();
    Shown found{QStringLiteral("?"), 0, 0, 0};
    for (int set = 0; set < 16; ++set) {
        for (int offset = 0; offset < distance; ++offset) {
            Shown shown{QString(), set == 0 ? 0 : offset, 0, 0};
            if (!isPicture(image, set, offset, &shown))
                continue;
            for (int family = 0; family < 4; ++family) {
                if ((set & (1 << family)) != 0)
                    shown.families += QLatin1Char(families[family].letter);
            }
            return shown;
        }
    }
    return found;
}

bool GridRig::fileExists() const
{
    return QFile::exists(settings.path());
}

QByteArray GridRig::fileBytes() const
{
    QFile file(settings.path());
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QVariant GridRig::inFile(const QString &key) const
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
