#include "placementpanel.h"
#include "testsettings.h"

#include <QtTest>

namespace {

const QString keyX = QStringLiteral("testWindowPointX");
const QString keyY = QStringLiteral("testWindowPointY");
const QString keyWidth = QStringLiteral("testWindowWidth");
const QString keyHeight = QStringLiteral("testWindowHeight");
const QString keyVisible = QStringLiteral("testWindowVisible");

} // namespace

class TestDrawCtrlFormSettings : public QObject
{
    Q_OBJECT

private slots:
    void emptySettings_startAtTheOriginWith256x256Shown();
    void storedWidthAndHeight_restoreAsASquareOfTheWidth();
    void storedVisibleTrue_startsHiddenWithOnlyShowEnabled();
    void storedVisibility_isReadAsABool_data();
    void storedVisibility_isReadAsABool();
    void storedSize_isRestored_data();
    void storedSize_isRestored();
    void storedPlace_isRestored_data();
    void storedPlace_isRestored();
    void save_writesTheSliders();
    void save_writesTheVisibilityInverted();
    void restart_comesBackToTheSavedPlace();
};

void TestDrawCtrlFormSettings::emptySettings_startAtTheOriginWith256x256Shown()
{
    TestSettings settings;
    const PlacementPanel panel(settings.get());

    QCOMPARE(panel.target.geometry(), QRect(0, 0, 256, 256));
    QCOMPARE(panel.controls(), QRect(0, 0, 256, 256));
    QVERIFY(panel.target.isVisible());
    QVERIFY(panel.hideButton()->isEnabled());
    QVERIFY(!panel.showButton()->isEnabled());
}

void TestDrawCtrlFormSettings::storedWidthAndHeight_restoreAsASquareOfTheWidth()
{
    TestSettings settings({{keyWidth, 560}, {keyHeight, 420}});
    const PlacementPanel panel(settings.get());

    QCOMPARE(panel.target.size(), QSize(560, 560));
    QCOMPARE(panel.controls().size(), QSize(560, 560));
}

void TestDrawCtrlFormSettings::storedVisibleTrue_startsHiddenWithOnlyShowEnabled()
{
    TestSettings settings({{keyVisible, true}});
    const PlacementPanel panel(settings.get());

    QVERIFY(panel.target.isHidden());
    QCOMPARE(panel.showButton()->text(), QStringLiteral("显示"));
    QVERIFY(panel.showButton()->isEnabled());
    QVERIFY(!panel.hideButton()->isEnabled());
}

void TestDrawCtrlFormSettings::storedVisibility_isReadAsABool_data()
{
    QTest::addColumn<QVariant>("stored");
    QTest::addColumn<bool>("hidden");

    QTest::newRow("true") << QVariant(true) << true;
    QTest::newRow("false") << QVariant(false) << false;
    QTest::newRow("text true") << QVariant(QStringLiteral("true")) << true;
    QTest::newRow("text false") << QVariant(QStringLiteral("false")) << false;
    QTest::newRow("one") << QVariant(1) << true;
    QTest::newRow("zero") << QVariant(0) << false;
    QTest::newRow("empty text") << QVariant(QString()) << false;
    QTest::newRow("list") << QVariant(QStringList{QStringLiteral("a"), QStringLiteral("b")})
                          << false;
}

void TestDrawCtrlFormSettings::storedVisibility_isReadAsABool()
{
    QFETCH(QVariant, stored);
    QFETCH(bool, hidden);
    TestSettings settings({{keyVisible, stored}});
    settings.reopen();
    const PlacementPanel panel(settings.get());

    QCOMPARE(panel.target.isHidden(), hidden);
    QCOMPARE(panel.showButton()->isEnabled(), hidden);
    QCOMPARE(panel.hideButton()->isEnabled(), !hidden);
}

void TestDrawCtrlFormSettings::storedSize_isRestored_data()
{
    QTest::addColumn<QVariant>("width");
    QTest::addColumn<QVariant>("height");
    QTest::addColumn<QSize>("size");
    const int maxWidth = desktopSums().width();
    const int maxHeight = desktopSums().height();
    const QStringList list{QStringLiteral("3"), QStringLiteral("4")};

    QTest::newRow("square") << QVariant(300) << QVariant(300) << QSize(300, 300);
    QTest::newRow("higher than wide") << QVariant(100) << QVariant(300) << QSize(100, 100);
    QTest::newRow("smallest") << QVariant(1) << QVariant(1) << QSize(1, 1);
    QTest::newRow("width 0") << QVariant(0) << QVariant(0) << QSize(256, 256);
    QTest::newRow("height below 1") << QVariant(300) << QVariant(-5) << QSize(300, 256);
    QTest::newRow("height missing") << QVariant(300) << QVariant() << QSize(300, 256);
    // The height takes the width as it is stored, which the range lifts to 1.
    QTest::newRow("width missing") << QVariant() << QVariant(300) << QSize(256, 1);
    QTest::newRow("width negative") << QVariant(-7) << QVariant(300) << QSize(256, 1);
    QTest::newRow("beyond the desktop")
        << QVariant(maxWidth + 1) << QVariant(300) << QSize(maxWidth, maxHeight);
    QTest::newRow("largest int") << QVariant(2147483647) << QVariant(2147483647)
                                 << QSize(maxWidth, maxHeight);
    QTest::newRow("beyond an int")
        << QVariant(QStringLiteral("99999999999999999999"))
        << QVariant(QStringLiteral("99999999999999999999")) << QSize(256, 256);
    QTest::newRow("smallest int") << QVariant(-2147483647 - 1) << QVariant(-2147483647 - 1)
                                  << QSize(256, 256);
    QTest::newRow("texts") << QVariant(QStringLiteral("wide")) << QVariant(QStringLiteral("high"))
                           << QSize(256, 256);
    QTest::newRow("lists") << QVariant(list) << QVariant(list) << QSize(256, 256);
    QTest::newRow("bytes") << QVariant(QByteArray("\x00\xff\x01", 3))
                           << QVariant(QByteArray("\xfe")) << QSize(256, 256);
}

void TestDrawCtrlFormSettings::storedSize_isRestored()
{
    QFETCH(QVariant, width);
    QFETCH(QVariant, height);
    QFETCH(QSize, size);
    QVariantMap values;
    if (width.isValid())
        values[keyWidth] = width;
    if (height.isValid())
        values[keyHeight] = height;
    TestSettings settings(values);
    settings.reopen();

    const PlacementPanel panel(settings.get());

    QCOMPARE(panel.target.geometry(), QRect(QPoint(0, 0), size));
    QCOMPARE(panel.controls(), QRect(QPoint(0, 0), size));
    QVERIFY(panel.target.isVisible());
}

void TestDrawCtrlFormSettings::storedPlace_isRestored_data()
{
    QTest::addColumn<QVariant>("x");
    QTest::addColumn<QVariant>("y");
    QTest::addColumn<QPoint>("place");
    const int w = desktopSums().width();
    const int h = desktopSums().height();
    const QStringList list{QStringLiteral("3"), QStringLiteral("4")};

    QTest::newRow("inside") << QVariant(31) << QVariant(45) << QPoint(31, 45);
    QTest::newRow("zero") << QVariant(0) << QVariant(0) << QPoint(0, 0);
    QTest::newRow("left and above") << QVariant(-31) << QVariant(-45) << QPoint(-31, -45);
    QTest::newRow("at the minimum") << QVariant(1 - w) << QVariant(1 - h) << QPoint(1 - w, 1 - h);
    QTest::newRow("at the maximum") << QVariant(w - 1) << QVariant(h - 1) << QPoint(w - 1, h - 1);
    QTest::newRow("beyond") << QVariant(w) << QVariant(99999) << QPoint(w - 1, h - 1);
    QTest::newRow("largest int") << QVariant(2147483647) << QVariant(2147483647)
                                 << QPoint(w - 1, h - 1);
    QTest::newRow("smallest int") << QVariant(-2147483647 - 1) << QVariant(-2147483647 - 1)
                                  << QPoint(1 - w, 1 - h);
    QTest::newRow("texts") << QVariant(QStringLiteral("left")) << QVariant(QStringLiteral("12px"))
                           << QPoint(0, 0);
    QTest::newRow("numbers as text")
        << QVariant(QStringLiteral("12")) << QVariant(QStringLiteral("-13")) << QPoint(12, -13);
    QTest::newRow("lists") << QVariant(list) << QVariant(list) << QPoint(0, 0);
}

void TestDrawCtrlFormSettings::storedPlace_isRestored()
{
    QFETCH(QVariant, x);
    QFETCH(QVariant, y);
    QFETCH(QPoint, place);
    TestSettings settings({{keyX, x}, {keyY, y}});
    settings.reopen();

    const PlacementPanel panel(settings.get());

    QCOMPARE(panel.target.pos(), place);
    QCOMPARE(panel.controls().topLeft(), place);
}

void TestDrawCtrlFormSettings::save_writesTheSliders()
{
    TestSettings settings;
    const PlacementPanel panel(settings.get());
    panel.x()->setValue(-11);
    panel.y()->setValue(22);
    panel.width()->setValue(333);
    panel.height()->setValue(244);

    panel.form->saveWindowBaseInfo();

    const QVariantMap stored = settings.stored();
    QCOMPARE(stored.value(keyX).toString(), QStringLiteral("-11"));
    QCOMPARE(stored.value(keyY).toString(), QStringLiteral("22"));
    QCOMPARE(stored.value(keyWidth).toString(), QStringLiteral("333"));
    QCOMPARE(stored.value(keyHeight).toString(), QStringLiteral("244"));
    QCOMPARE(stored.value(keyVisible).toString(), QStringLiteral("false"));
    QCOMPARE(stored.count(), 5);
}

void TestDrawCtrlFormSettings::save_writesTheVisibilityInverted()
{
    TestSettings settings;
    const PlacementPanel panel(settings.get());

    panel.form->slot_HidePushed();
    panel.form->saveWindowBaseInfo();
    QCOMPARE(settings.stored().value(keyVisible).toString(), QStringLiteral("true"));

    panel.form->slot_showPushed();
    panel.form->saveWindowBaseInfo();
    QCOMPARE(settings.stored().value(keyVisible).toString(), QStringLiteral("false"));
}

void TestDrawCtrlFormSettings::restart_comesBackToTheSavedPlace()
{
    TestSettings settings;
    {
        const PlacementPanel panel(settings.get());
        panel.x()->setValue(100);
        panel.y()->setValue(-50);
        panel.width()->setValue(333);
        panel.height()->setValue(244);
        QTest::mouseClick(panel.hideButton(), Qt::LeftButton);
        panel.form->saveWindowBaseInfo();
    }
    settings.reopen();

    const PlacementPanel panel(settings.get());

    QCOMPARE(panel.target.geometry(), QRect(100, -50, 333, 333));
    QVERIFY(panel.target.isHidden());
}

QTEST_MAIN(TestDrawCtrlFormSettings)
#include "tst_drawctrlform_settings.moc"
