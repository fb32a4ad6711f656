#pragma once

#include "canvas.h"
#include "griddrawer.h"
#include "scrgridctrldialog.h"
#include "testsettings.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QPushButton>
#include <QSlider>
#include <QSpinBox>
#include <QTimer>

#include <memory>

// What the test window shows. Families are letters: H horizontal, V vertical, L slant left,
// R slant right; "?" for a picture that is none of theirs.
struct Shown
{
    QString families;
    int offset; // of the lines; 0 if there are none
    QRgb background;
    QRgb line; // the background if there are no lines
};

// The grid panel over a canvas and a settings file of its own, with its controls at hand. As in
// the program, its drawer has been taken once.
class GridRig
{
public:
    // `values` stand in the file before the panel is built.
    explicit GridRig(const QVariantMap &values = {})
        : settings(values)
    {
        build();
    }

    // The file holds exactly these bytes before the panel is built.
    explicit GridRig(const QByteArray &fileContents);

    // Builds the panel anew, as after a restart of the program.
    void restart();

    template<typename Widget>
    Widget *child(const char *name) const
    {
        return panel->findChild<Widget *>(QLatin1String(name));
    }

    // Red, green, blue, white, yellow, cyan, purple.
    QAbstractButton *colorButton(int index) const;
    // The button of a family's letter.
    QPushButton *familyButton(QChar family) const;
    QSlider *greySlider() const { return child<QSlider>("hScrollBarGrayLevel"); }
    QSpinBox *greySpinBox() const { return child<QSpinBox>("labelGrayLevel"); }
    QSlider *speedSlider() const { return child<QSlider>("hScrollBarSpeed"); }
    QSpinBox *speedSpinBox() const { return child<QSpinBox>("labelSpeed"); }
    QCheckBox *overlay() const { return child<QCheckBox>("netGridCheckBox"); }
    QPushButton *merged() const { return child<QPushButton>("pushButtonMerged"); }
    QPushButton *aging() const { return child<QPushButton>("pushButtonOld"); }
    // The two share a name for the style sheet.
    QPushButton *pause() const { return begin(0); }
    QPushButton *mixSettings() const { return begin(1); }
    QWidget *greenLamp() const { return child<QWidget>("signalGreenButton"); }
    QWidget *greyLamp() const { return child<QWidget>("signalGreyButton"); }

    void click(QAbstractButton *button) const;
    // Each family's button, in the order of the letters.
    void clickFamilies(const char *letters) const;

    // The only timer of the panel.
    QTimer *timer() const;
    int interval() const { return timer()->interval(); }
    void tick(int times = 1) const;

    // Letters of the buttons that are checked, and of those that are remembered as pressed.
    QString checked() const;
    QString pressed() const;
    // "scrolling", "aging", "merged" or "aging merged".
    QString mode() const;
    // Both sliders, both spin boxes and the start/pause button: 1 all enabled, 0 all disabled,
    // -1 some of each.
    int runControls() const;

    Shown shown();

    bool fileExists() const;
    QByteArray fileBytes() const;
    // What stands in the file at this moment, nothing pending included.
    QVariant inFile(const QString &key) const;

    mutable TestSettings settings;
    Canvas canvas{QSize(41, 41)};
    std::unique_ptr<ScrGridCtrlDialog> panel;
    GridDrawer *drawer = nullptr;

private:
    void build();
    QPushButton *begin(int index) const;
    QVariant saved(const char *key) const;
};
