#pragma once

#include "gridcanvas.h"
#include "panelrig.h"
#include "scrgridctrldialog.h"

#include <QCheckBox>
#include <QPushButton>
#include <QTimer>

// The grid panel with its controls at hand. As in the program, its drawer has been taken.
class GridRig : public PanelRig<ScrGridCtrlDialog>
{
public:
    explicit GridRig(const QVariantMap &values = {})
        : PanelRig(values, QSize(41, 41))
    {
        takeDrawer();
    }
    explicit GridRig(const QByteArray &contents)
        : PanelRig(contents, QSize(41, 41))
    {
        takeDrawer();
    }

    void restart() override
    {
        PanelRig::restart();
        takeDrawer();
    }

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

    // As the panel would save it now.
    QVariant saved(const QString &key) const;

    GridDrawer *drawer = nullptr;

private:
    void takeDrawer() { drawer = static_cast<GridDrawer *>(panel->getDrawer()); }
    QPushButton *beginButton(int index) const;
};
