#include "dictionary.h"
#include "rows.h"
#include "titlebar.h"

#include <QDialog>
#include <QLabel>
#include <QStyle>
#include <QToolButton>
#include <QVBoxLayout>
#include <QtTest>

using UX::Widgets::TitleBar;

namespace {

// A window with nothing but its title bar, as wide as asked.
template<typename Window>
struct Titled
{
    explicit Titled(int width = 400)
    {
        auto *layout = new QVBoxLayout(&window);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->addWidget(bar, 0, Qt::AlignTop);
        layout->setAlignment(bar, Qt::Alignment());
        window.resize(width, 100);
    }

    QLabel *label() const { return bar->findChild<QLabel *>(); }
    QToolButton *button(int id) const { return qobject_cast<QToolButton *>(bar->titleButton(id)); }
    bool shows(int id) const { return !button(id)->isHidden(); }

    Window window;
    TitleBar *bar = new TitleBar(&window);
};

QIcon plainIcon(const QColor &color)
{
    QPixmap pixmap(16, 16);
    pixmap.fill(color);
    return {pixmap};
}

QColor faceColor(const QToolButton *button)
{
    return button->icon().pixmap(16, 16).toImage().pixelColor(8, 8);
}

} // namespace

class TestTitleBar : public QObject
{
    Q_OBJECT

private slots:
    void windowTitle_isShown();
    void titleThatDoesNotFit_isElidedAndWholeAsToolTip();

    void parts_carryTheStyleProperties_data();
    void parts_carryTheStyleProperties();
    void buttons_standInTheOrderOfTheirIds();
    void unknownId_isIgnored_data();
    void unknownId_isIgnored();

    void logo_showsTheWindowsIcon();
    void window_offersWhatItNeeds();
    void requestedButton_isShown();
    void buttons_actOnTheWindow();
    void newLanguage_changesTheToolTips();
};

void TestTitleBar::windowTitle_isShown()
{
    Titled<QWidget> titled;
    titled.window.setWindowTitle(QStringLiteral("A title"));
    titled.window.show();

    QCOMPARE(titled.bar->title(), QStringLiteral("A title"));
    QCOMPARE(titled.label()->text(), QStringLiteral("A title"));
    QCOMPARE(titled.label()->toolTip(), QString());
    QCOMPARE(titled.bar->height(), 28);
}

void TestTitleBar::titleThatDoesNotFit_isElidedAndWholeAsToolTip()
{
    Titled<QWidget> titled(600);
    titled.window.show();
    const QString title = QStringLiteral("A <b>title</b> for a wide window");
    titled.window.setWindowTitle(title);
    QCOMPARE(titled.label()->text(), title);
    QCOMPARE(titled.label()->textFormat(), Qt::PlainText);

    titled.window.resize(200, 100);
    QTRY_VERIFY(titled.label()->text() != title);
    const QString shown = titled.label()->text();
    QVERIFY(shown.endsWith(QChar(0x2026)));
    QVERIFY(title.startsWith(shown.left(shown.size() - 1)));
    QVERIFY(titled.label()->fontMetrics().boundingRect(shown).width() <= titled.label()->width());
    QCOMPARE(titled.label()->toolTip(), title);
    QCOMPARE(titled.label()->accessibleName(), title);
    QCOMPARE(titled.bar->title(), title);
    QCOMPARE(titled.window.width(), 200);

    titled.bar->setTitle(QStringLiteral("Short"));
    QCOMPARE(titled.label()->text(), QStringLiteral("Short"));
    QCOMPARE(titled.label()->toolTip(), QString());
    titled.bar->setTitle(title);
    titled.window.resize(600, 100);
    QTRY_COMPARE(titled.label()->text(), title);
}

void TestTitleBar::parts_carryTheStyleProperties_data()
{
    const Table<int, QByteArray> row("id", "property");
    row("logo", 0, "isTitleBarLogoButton");
    row("minimise", 1, "isTitleBarMinButton");
    row("maximise", 2, "isTitleBarMaxButton");
    row("restore", 3, "isTitleBarRestoreButton");
    row("close", 4, "isTitleBarCloseButton");
}

void TestTitleBar::parts_carryTheStyleProperties()
{
    QFETCH(int, id);
    QFETCH(QByteArray, property);
    Titled<QWidget> titled;

    QCOMPARE(titled.button(id)->dynamicPropertyNames(), QList<QByteArray>{property});
    QCOMPARE(titled.button(id)->property(property.constData()), QVariant(true));
    QCOMPARE(titled.button(id)->focusPolicy(), Qt::NoFocus);
    QCOMPARE(titled.button(id)->icon().isNull(), id == TitleBar::LogoButton);
    QCOMPARE(titled.label()->property("isTitleBarTitle"), QVariant(true));
    QCOMPARE(titled.bar->property("isTitleBar"), QVariant(true));
}

void TestTitleBar::buttons_standInTheOrderOfTheirIds()
{
    Titled<QWidget> titled;
    for (int id = 0; id <= 4; ++id)
        titled.bar->setTitleButtonVisible(id, true);
    titled.window.show();

    for (int id = 1; id <= 4; ++id)
        QVERIFY(titled.button(id)->x() >= titled.button(id - 1)->geometry().right() + 1);
    QVERIFY(titled.label()->x() > titled.button(0)->geometry().right());
    QVERIFY(titled.label()->geometry().right() < titled.button(1)->x());
    QCOMPARE(titled.button(0)->x(), 0);
    QCOMPARE(titled.button(4)->geometry().right(), titled.bar->rect().right());
}

void TestTitleBar::unknownId_isIgnored_data()
{
    addRows<int>("id", {{"before the first", -1}, {"after the last", 5}});
}

void TestTitleBar::unknownId_isIgnored()
{
    QFETCH(int, id);
    Titled<QWidget> titled;
    QCOMPARE(titled.bar->titleButton(id), nullptr);
    titled.bar->setTitleButtonIcon(id, plainIcon(Qt::red));
    titled.bar->setTitleButtonVisible(id, false);
    titled.window.show();
    QVERIFY(titled.shows(TitleBar::CloseButton));
}

void TestTitleBar::logo_showsTheWindowsIcon()
{
    Titled<QWidget> titled;
    titled.window.show();
    QVERIFY(!titled.shows(TitleBar::LogoButton));
    for (const QColor color : {Qt::green, Qt::magenta}) {
        titled.window.setWindowIcon(plainIcon(color));
        QVERIFY(titled.shows(TitleBar::LogoButton));
        QCOMPARE(faceColor(titled.button(0)), color);
    }
    titled.bar->setTitleButtonVisible(TitleBar::LogoButton, false);
    titled.window.setWindowIcon(plainIcon(Qt::blue));
    QVERIFY(!titled.shows(TitleBar::LogoButton));

    titled.bar->setTitleButtonIcon(TitleBar::CloseButton, plainIcon(Qt::cyan));
    QCOMPARE(faceColor(titled.button(4)), QColor(Qt::cyan));
    QVERIFY(faceColor(titled.button(1)) != QColor(Qt::cyan));
}

void TestTitleBar::window_offersWhatItNeeds()
{
    Titled<QWidget> main;
    main.window.show();
    Titled<QDialog> dialog;
    dialog.window.show();
    QVERIFY(main.shows(TitleBar::MinButton));
    QVERIFY(!dialog.shows(TitleBar::MinButton));
    for (const int id : {TitleBar::MaxButton, TitleBar::RestoreButton})
        QVERIFY(!main.shows(id) && !dialog.shows(id));
    QVERIFY(main.shows(TitleBar::CloseButton) && dialog.shows(TitleBar::CloseButton));
}

void TestTitleBar::requestedButton_isShown()
{
    Titled<QDialog> titled;
    for (int id = 0; id <= 4; ++id)
        titled.bar->setTitleButtonVisible(id, true);
    titled.window.show();
    for (int id = 0; id <= 4; ++id)
        QVERIFY(titled.shows(id));
    titled.bar->setTitleButtonVisible(TitleBar::CloseButton, false);
    QVERIFY(!titled.shows(TitleBar::CloseButton));
}

void TestTitleBar::buttons_actOnTheWindow()
{
    Titled<QWidget> titled;
    titled.window.show();

    titled.button(TitleBar::MaxButton)->click();
    QVERIFY(titled.window.isMaximized());
    titled.button(TitleBar::RestoreButton)->click();
    QVERIFY(!titled.window.isMaximized());
    titled.button(TitleBar::MinButton)->click();
    QVERIFY(titled.window.isMinimized());
    titled.window.showNormal();
    titled.button(TitleBar::CloseButton)->click();
    QVERIFY(!titled.window.isVisible());
}

void TestTitleBar::newLanguage_changesTheToolTips()
{
    Titled<QWidget> titled;
    const QStringList names{QStringLiteral("最小化"), QStringLiteral("最大化"),
                            QStringLiteral("还原"), QStringLiteral("关闭")};
    for (int id = 1; id <= 4; ++id) {
        QCOMPARE(titled.button(id)->toolTip(), names.at(id - 1));
        QCOMPARE(titled.button(id)->accessibleName(), names.at(id - 1));
    }

    const Dictionary marked(QStringLiteral("!"), "UX::Widgets::TitleBar");
    for (int id = 1; id <= 4; ++id) {
        QTRY_COMPARE(titled.button(id)->toolTip(), names.at(id - 1) + QLatin1Char('!'));
        QCOMPARE(titled.button(id)->accessibleName(), names.at(id - 1) + QLatin1Char('!'));
    }
}

QTEST_MAIN(TestTitleBar)
#include "tst_titlebar.moc"
