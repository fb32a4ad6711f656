#pragma once

#include "controlbase.h"

#include <QColor>
#include <QDialog>
#include <QPointer>

#include <array>
#include <memory>

class AdvancedSetup;
class QButtonGroup;
class QImage;
class QSettings;
class QSpinBox;
class SaveSoon;
class ScrGrid;

namespace Ui {
class TarnTool;
}

// Tab 4, the cabinet layout: the screen's modules and scan boards, their colours and what is
// behind them. Its controls are locked until the operator lays the pattern over the test window.
class TarnTool
    : public QDialog
    , public ControlBase
{
    Q_OBJECT

public:
    // Test window and settings are borrowed. Without settings nothing is restored or saved.
    TarnTool(QWidget *drawWidget, QSettings *settings, QWidget *parent);
    ~TarnTool() override;

    // Makes the drawer inactive: the layout shows again once a control is touched.
    DrawerBase *getDrawer() override;

    // Writes what is not written at each change: the module's size and counts, the order of the
    // columns and the kind of background.
    void saveTarnBaseInfo();
    void initTarnStatus();

    // Copies the whole panel, and the stored advanced values, into the drawer.
    void getData();

    // Every control of the panel; dialogs that are open stay as they are.
    void setAllCtrolDisabled(bool disabled);
    void updateLanguage();

    // The operator has changed the layout here since this was last cleared.
    bool m_userChanged = false;

    // The layout has been laid over the test window since the start.
    bool m_started = false;

public slots:
    void slot_drawerSizeChanged(int width, int height);
    // Locks the panel up to the next press of the layout button. The layout stays as it is.
    void slot_forbidControls();
    void slot_radioBackgroundRefresh();
    void slot_radioBackgroundClicked();
    // Takes the kept picture, or lets the operator choose one if there is none.
    void slot_radioPictureRefresh();
    void slot_radioPictureClicked();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private slots:
    void on_buttonSetup_clicked(); // clazy:exclude=connect-by-name
    void on_buttonFont_clicked(); // clazy:exclude=connect-by-name
    void on_buttonModeLine_clicked(); // clazy:exclude=connect-by-name
    void on_buttonScan_clicked(); // clazy:exclude=connect-by-name
    void on_radioBeginLeft_clicked(); // clazy:exclude=connect-by-name
    void on_radioBeginRight_clicked(); // clazy:exclude=connect-by-name
    void on_buttonFixedPosition_clicked(); // clazy:exclude=connect-by-name
    void on_boxWidth_valueChanged(int width); // clazy:exclude=connect-by-name
    void on_boxHight_valueChanged(int height); // clazy:exclude=connect-by-name
    void on_boxColumn_valueChanged(int columns); // clazy:exclude=connect-by-name
    void on_boxRow_valueChanged(int rows); // clazy:exclude=connect-by-name

private:
    enum ColorItem { FontColor, ModuleLineColor, ScanColor, BackgroundColor, colorCount };

    // One colour of the layout, with its swatch and its places in the settings and the drawer.
    struct ColorChoice
    {
        QWidget *swatch;
        QLatin1String colorKey;
        QLatin1String styleKey;
        QColor TarnTool::*color;
        QColor ScrGrid::*field;
        Qt::GlobalColor initial;
    };

    // A spin box with its place in the settings.
    struct Count
    {
        QSpinBox *box;
        QLatin1String key;
        int minimum;
        int initial;
        int maximum;
    };

    std::array<ColorChoice, colorCount> makeColors() const;
    void uiInit();
    void dataInit();
    void ControlInit();
    void restoreCounts();
    void restoreColors();
    void restorePicture();
    void restoreThumbnail();
    bool chooseColor(ColorItem item);
    void setSwatch(ColorItem item, const QColor &color, const QString &style);
    void takePictureAway();
    void useSolidBackground();
    void usePicture(const QString &path);
    void showThumbnail(const QImage &picture);
    void showChange();
    void saveSoon();

    QWidget *m_testWindow;
    const std::unique_ptr<ScrGrid> m_drawer;
    const std::unique_ptr<Ui::TarnTool> ui;
    QButtonGroup *m_bgGroup;
    QButtonGroup *m_orderGroup;
    std::array<Count, 4> m_counts{};
    const std::array<ColorChoice, colorCount> m_colors;
    bool m_bgSolid = true;
    bool m_leftToRight = true;
    QColor m_fontColor;
    QColor m_moduleLineColor;
    QColor m_scanColor;
    QColor m_bgColor;
    QSettings *m_settings;
    SaveSoon *m_saveSoon;
    QString m_bgPicturePath; // of the picture in use; empty for the solid colour
    QString m_lastPictureDir; // where the next file dialog begins
    QPointer<AdvancedSetup> m_setup; // while it is open
    bool m_thumbnailDue = false; // of the kept picture
};
