#pragma once

#include "gridcanvas.h"
#include "scrgridctrldialog.h"
#include "testsettings.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QPushButton>
#include <QSlider>
#include <QSpinBox>
#include <QTimer>

#include <memory>

// The grid panel over a canvas and a settings file of its own, with its controls at hand. As in
// the program, its drawer has been taken once.
class GridRig
{
public:
    // The settings file holds these values, or exactly these bytes, before the panel is built.
    explicit GridRig(const QVariantMap &values = {});
    explicit GridRig(const QByteArray &contents);

    // Closes the panel, and what it leaves is in the file.
    void close();
    // Builds the panel again, as after a restart of the program.
    void restart();

    template<typename Widget>
    Widget *child(const char *name) const
    {
        return panel->findChild<Widget *>(QLatin1String(name));
    }

    // Red, green, blue, white, yellow, cyan, purple.
    QAbstractButton *colorButton(int index) const;
    // The button of a family's letter, as in Picture.
    QPushButton *familyButton(char letter) const;
    QSlider *greySlider() const { return child<QSlider>("hScrollBarGrayLevel"); }
    QSpinBox *greySpinBox() const { return child<QSpinBox>("labelGrayLevel"); }
    QSlider *speedSlider() const { return child<QSlider>("hScrollBarSpeed"); }
    QSpinBox *speedSpinBox() const { return child<QSpinBox>("labelSpeed"); }
    QCheckBox *overlay() const { return child<QCheckBox>("netGridCheckBox"); }
    QPushButton *merged() const { return child<QPushButton>("pushButtonMerged"); }
    QPushButton *aging() const { return child<QPushButton>("pushButtonOld"); }
    QPushButton *test(bool isAging) const { return isAging ? aging() : merged(); }
    // The two share a name for the style sheet.
    QPushButton *pause() const { return beginButton(0); }
    QPushButton *mixSettings() const { return beginButton(1); }
    QWidget *greenLamp() const { return child<QWidget>("signalGreenButton"); }
    QWidget *greyLamp() const { return child<QWidget>("signalGreyButton"); }

    void click(QAbstractButton *button) const;
    // Each family's button, in the order of the letters.
    void clickFamilies(const char *letters) const;

    // The only timer of the panel.
    QTimer *timer() const;
    void tick(int times = 1) const;

    // Letters of the buttons that are checked, and of those that are remembered as pressed.
    QString checked() const;
    QString pressed() const;
    // "scrolling", "aging", "merged" or "aging merged".
    QString mode() const;
    // Both sliders, both spin boxes and the start/pause button: 1 all enabled, 0 all disabled,
    // -1 some of each.
    int runControls() const;

    Picture shown() { return picture(canvas.painted()); }
    // The next tick's, and one after the other.
    QString nextShown();
    QString nextShown(int count);

    bool isSaveDue() const;
    // As the panel would save it now.
    QVariant saved(const QString &key) const;
    QByteArray fileBytes();

    mutable TestSettings settings;
    Canvas canvas{QSize(41, 41)};
    std::unique_ptr<ScrGridCtrlDialog> panel;
    GridDrawer *drawer = nullptr;

private:
    void build();
    QPushButton *beginButton(int index) const;
};
