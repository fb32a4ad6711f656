#include "desktopscale.h"
#include "rows.h"

#include <QBoxLayout>
#include <QGridLayout>
#include <QLabel>
#include <QtTest>

class tst_DesktopScale : public QObject
{
    Q_OBJECT

private slots:
    void factor_isInSteps_data();
    void factor_isInSteps();
    void styleSheet_scalesItsLengths_data();
    void styleSheet_scalesItsLengths();
    void apply_scalesPlacesAndLimits();
    void apply_scalesLayouts();
    void apply_leavesWhatTheStyleSheetSized();
    void apply_leavesTheRoomOfAFrame();
    void apply_leavesOtherWindowsAndAScaleOfOne();
};

void tst_DesktopScale::factor_isInSteps_data()
{
    // The screen of these tests has 96 dots per inch.
    const Table<QString, qreal> row("asked", "factor");
    row("nothing", QString(), 1.0);
    row("no number", QStringLiteral("big"), 1.0);
    row("infinite", QStringLiteral("inf"), 1.0);
    row("negative", QStringLiteral("-2"), 1.0);
    row("below one", QStringLiteral("0.5"), 1.0);
    row("just below a step", QStringLiteral("1.12"), 1.0);
    row("a step", QStringLiteral("1.13"), 1.25);
    row("two", QStringLiteral("2"), 2.0);
    row("too large", QStringLiteral("9"), 4.0);
}

void tst_DesktopScale::factor_isInSteps()
{
    QFETCH(QString, asked);
    DesktopScale::request(asked);
    QTEST(DesktopScale::factor(), "factor");
}

void tst_DesktopScale::styleSheet_scalesItsLengths_data()
{
    const QString rule = QStringLiteral("QLabel#a12px { padding: 2px -1px 0px; image: "
                                        "url(:/Resource/Image/up.png); color: #101010 }");
    const Table<const char *, QString, QString> row("asked", "text", "scaled");
    row("one", "1", rule, rule);
    row("one and a half", "1.5", rule,
        QStringLiteral("QLabel#a12px { padding: 3px -1px 0px; "
                       "image: url(:/Resource/Image4x/up.png); color: #101010 }"));
    row("three", "3", QStringLiteral("width:12px;height:7px"),
        QStringLiteral("width:36px;height:21px"));
    const QString disc = QStringLiteral("border: 2px; border-radius: 7px; width: 10px");
    row("whole radius", "2", disc, QStringLiteral("border: 4px; border-radius: 14px; width: 20px"));
    row("radius of parts that are rounded down", "1.75", disc,
        QStringLiteral("border: 3px; border-radius: 11px; width: 17px"));
}

void tst_DesktopScale::styleSheet_scalesItsLengths()
{
    QFETCH(QString, asked);
    QFETCH(QString, text);
    DesktopScale::request(asked);
    QTEST(DesktopScale::styleSheet(text), "scaled");
}

void tst_DesktopScale::apply_scalesPlacesAndLimits()
{
    DesktopScale::request(QStringLiteral("1.5"));
    QWidget window;
    window.setFixedSize(100, 50);
    QWidget panel(&window);
    panel.setGeometry(10, 20, 60, 30);
    QWidget field(&panel);
    field.setMinimumHeight(10);
    field.setMaximumWidth(20);
    field.setGeometry(3, 5, 20, 11);
    DesktopScale::apply(&window);
    QCOMPARE(window.size(), QSize(150, 75));
    QCOMPARE(window.maximumSize(), QSize(150, 75));
    QCOMPARE(panel.geometry(), QRect(15, 30, 90, 45));
    QCOMPARE(panel.maximumWidth(), QWIDGETSIZE_MAX);
    QCOMPARE(field.geometry(), QRect(4, 7, 30, 16));
    QCOMPARE(field.minimumHeight(), 15);
    QCOMPARE(field.maximumWidth(), 30);
}

void tst_DesktopScale::apply_scalesLayouts()
{
    DesktopScale::request(QStringLiteral("2"));
    QWidget window;
    auto *column = new QVBoxLayout(&window);
    column->setContentsMargins(1, 2, 3, 4);
    column->setSpacing(5);
    column->addSpacing(7);
    auto *grid = new QGridLayout;
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(8);
    grid->setVerticalSpacing(9);
    column->addLayout(grid);
    DesktopScale::apply(&window);
    QCOMPARE(column->contentsMargins(), QMargins(2, 4, 6, 8));
    QCOMPARE(column->spacing(), 10);
    QCOMPARE(column->itemAt(0)->sizeHint().height(), 14);
    QCOMPARE(grid->horizontalSpacing(), 16);
    QCOMPARE(grid->verticalSpacing(), 18);
}

void tst_DesktopScale::apply_leavesWhatTheStyleSheetSized()
{
    DesktopScale::request(QStringLiteral("2"));
    QWidget window;
    window.setStyleSheet(QStringLiteral("QWidget#field { min-height: 60px; max-width: 70px }"));
    QWidget field(&window);
    field.setObjectName(QStringLiteral("field"));
    field.setGeometry(10, 10, 35, 23);
    field.ensurePolished(); // grows to the least height
    QCOMPARE(field.height(), 60);
    DesktopScale::apply(&window);
    QCOMPARE(field.geometry(), QRect(20, 20, 70, 60));
    QCOMPARE(field.minimumHeight(), 60);
    QCOMPARE(field.maximumWidth(), 70);
}

void tst_DesktopScale::apply_leavesTheRoomOfAFrame()
{
    DesktopScale::request(QStringLiteral("2"));
    QWidget window;
    QLabel label(&window);
    label.setStyleSheet(QStringLiteral("border: 4px solid; margin-right: 14px"));
    label.ensurePolished();
    const QMargins room = label.contentsMargins();
    QCOMPARE(room, QMargins(4, 4, 18, 4));
    DesktopScale::apply(&window);
    QCOMPARE(label.contentsMargins(), room);
}

void tst_DesktopScale::apply_leavesOtherWindowsAndAScaleOfOne()
{
    QWidget window;
    window.resize(100, 50);
    QWidget dialog(&window, Qt::Dialog);
    dialog.resize(40, 30);
    DesktopScale::request(QStringLiteral("1"));
    DesktopScale::apply(&window);
    QCOMPARE(window.size(), QSize(100, 50));
    DesktopScale::request(QStringLiteral("2"));
    DesktopScale::apply(&window);
    QCOMPARE(window.size(), QSize(200, 100));
    QCOMPARE(dialog.size(), QSize(40, 30));
}

QTEST_MAIN(tst_DesktopScale)
#include "tst_desktopscale.moc"
