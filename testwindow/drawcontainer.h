#pragma once

#include <QPoint>
#include <QString>
#include <QWidget>

#include <memory>

class CommonHelper;
class DrawerBase;
class QAction;
class QTimer;

namespace Ui {
class DrawContainer;
}

// The test window: borderless, on top, laid over the part of the desktop that the
// LED screen shows. It paints the current drawer's pattern, and is moved and resized
// with the mouse although it has no frame.
//
// Q_OBJECT is needed for more than signals: with it the window's palette, which
// drawers set for their backgrounds, wins over the background of its style sheet.
class DrawContainer : public QWidget
{
    Q_OBJECT

public:
    explicit DrawContainer(QWidget *parent = nullptr);
    ~DrawContainer() override;

    // Selects the drawer that is painted from now on, or, while it is inactive, from
    // its activation on. Nothing happens on null. The drawer is borrowed and has to
    // outlive the window or the first painting of another.
    void setDrawer(DrawerBase *drawer, bool active);

    // The drawer last handed over, null at start.
    const DrawerBase *selectedDrawer() const { return currentDrawer; }
    DrawerBase *selectedDrawer() { return currentDrawer; }

    // Whether this drawer's test is the one that the operator sees on its test window, or is
    // going to see with the next paint. Before any pattern was shown that is the selected one's.
    // True on a target that is not a test window.
    static bool shows(const DrawerBase &drawer);

    // The same, or selected and not active yet.
    static bool showsOrAwaits(const DrawerBase &drawer);

    // Where the window's own key presses go from now on; borrowed.
    void setKeyHelper(CommonHelper *helper) { keyHelper = helper; }

    void updateLanguage();

signals:
    void signal_containerWidgetHide();
    void signal_containerWidgetShow();
    void signal_drawWidgetSizeChange(int width, int height);
    void signal_drawWidgetPositionChange(int x, int y);

public slots:
    void slot_keyHomePressed();
    void slot_keyEndPressed();
    void slot_keySpacePressed();
    void slot_keyShiftFPressed();
    void slot_keyShiftHPressed();
    void slot_changeSelectedDrawColor(const QColor &color);
    void slot_changeSelectedDrawGrey(const QString &grey);
    // The largest size, in pixels, that resizing with the mouse may reach.
    void slot_setScreenMaxSize(int width, int height);
    void slot_hideWindow();
    void slot_updateContainer();

protected:
    void paintEvent(QPaintEvent *event) override;
    void enterEvent(QEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

private:
    void initContextMenu();
    void initRefreshTimer();
    void initPointerRest();
    DrawerBase *drawerToShow() const;
    void paintBackground();
    void drawMousePos();
    void drawHelperInfo();
    void findWidgetEdge(const QPoint &pointer);
    void resizeTo(const QPoint &pointer);
    void moveTo(const QPoint &pointer);
    void showGeometryToolTip();

    const std::unique_ptr<Ui::DrawContainer> ui;
    CommonHelper *keyHelper = nullptr;
    DrawerBase *currentDrawer = nullptr;
    DrawerBase *shownDrawer = nullptr;
    QPoint dragOffset; // global pointer position minus window position at the last press
    QString helpText;
    QTimer *refreshTimer = nullptr;
    bool showMousePos = false;
    bool showHelperInfo = false;
    int edgeMargin = 4; // width of the grab zone along each border, in pixels
    int edge = 0; // the borders that the pointer is on, WindowEdge::Edge bits
    QAction *hideAction = nullptr;
    int maxWidth = 0;
    int maxHeight = 0;
    int colourIndex = 0; // 1 to 7, 0 for none yet
    QString colourName;
    QString greyText;
    QTimer *m_pointerRest = nullptr; // runs from the pointer's last move
    bool m_dragging = false; // from a press to its release or to a double click
};
