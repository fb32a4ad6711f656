#pragma once
// Slots named on_... are connected by the form: clazy:excludeall=connect-by-name

#include "colorchoice.h"
#include "controlbase.h"
#include "savesoon.h"

#include <QDialog>
#include <QPointer>

#include <array>
#include <memory>

class AdvancedSetup;
class QButtonGroup;
class QImage;
class QSpinBox;

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
    void on_buttonSetup_clicked();
    void on_buttonFont_clicked() { changeColor(FontColor); }
    void on_buttonModeLine_clicked() { changeColor(ModuleLineColor); }
    void on_buttonScan_clicked() { changeColor(ScanColor); }
    void on_radioBeginLeft_clicked() { changeOrder(true); }
    void on_radioBeginRight_clicked() { changeOrder(false); }
    void on_buttonFixedPosition_clicked();
    void on_boxWidth_valueChanged(int width) { changeCount(ModuleWidth, width); }
    void on_boxHight_valueChanged(int height) { changeCount(ModuleHeight, height); }
    void on_boxColumn_valueChanged(int columns) { changeCount(ColumnCount, columns); }
    void on_boxRow_valueChanged(int rows) { changeCount(RowCount, rows); }

private:
    enum CountItem { ModuleHeight, ModuleWidth, ColumnCount, RowCount, countCount };
    enum ColorItem { FontColor, ModuleLineColor, ScanColor, BackgroundColor, colorCount };

    // A spin box with its place in the settings and the drawer.
    struct Count
    {
        QSpinBox *box;
        QLatin1String key;
        int ScrGrid::*field;
        int minimum;
        int initial;
        int maximum;
    };

    void uiInit();
    void dataInit();
    void ControlInit();
    void restorePicture();
    void restoreThumbnail();
    void changeCount(CountItem item, int value);
    void changeColor(ColorItem item);
    void changeOrder(bool leftToRight);
    void takePictureAway();
    void usePicture(const QString &path);
    void showThumbnail(const QImage &picture);
    void showChange();
    void saveSoon();

    const std::unique_ptr<ScrGrid> m_drawer;
    const std::unique_ptr<Ui::TarnTool> ui;
    QButtonGroup *m_bgGroup;
    QButtonGroup *m_orderGroup;
    std::array<Count, countCount> m_counts{};
    std::array<ColorChoice, colorCount> m_colors{};
    QSettings *m_settings;
    SaveSoon m_saveSoon;
    QString m_bgPicturePath; // of the picture in use; empty for the solid colour
    QString m_lastPictureDir = QStringLiteral("."); // where the next file dialog begins
    QPointer<AdvancedSetup> m_setup; // while it is open
    bool m_thumbnailDue = false; // of the kept picture
};
