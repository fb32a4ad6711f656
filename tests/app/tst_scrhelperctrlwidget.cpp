#include "mainwindowrig.h"
#include "scrhelperctrlwidget.h"
#include "shippedtranslation.h"

#include <QLabel>
#include <QRegularExpression>
#include <QScrollArea>
#include <QScrollBar>
#include <QTabWidget>
#include <QTest>

#include <algorithm>

namespace {

struct Row
{
    const char *genericKey;
    const char *key;
    const char *meaning;
};

constexpr Row expectedRows[] = {
    {"[Home]", "[Fn+←]", "显示/隐藏窗口右下角处提示"},
    {"[End]", "[Fn+→]", "显示/隐藏窗口中心处提示"},
    {"[PageUp]", "[Fn+↑]", "功能向上切换"},
    {"[PageDown]", "[Fn+↓]", "功能向下切换"},
    {"[Shift+↑↓←→]", "[⇧+↑↓←→]", "窗口大小"},
    {"[Shift+F/双击]", "[⇧+F/双击]", "全屏/取消全屏"},
    {"[Ctrl+↑↓←→]", "[⌘+↑↓←→]", "窗口位置"},
    {"[↑↓←→]", "[↑↓←→]", "灰度调节"},
    {"[Insert/Delete]", "[Fn+Enter/Delete]", "自动增加/减少灰度"},
    {"[Shift+H]", "[⇧+H]", "显示/隐藏窗口"},
};
constexpr int rowCount = sizeof(expectedRows) / sizeof(expectedRows[0]);
constexpr const char *tip = "提示：Mac使用本工具时，请把菜单栏设置隐藏掉";

} // namespace

class TestScrHelperCtrlWidget : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void form_hasTheGenericKeys();
    void updateLanguage_showsTheMacKeys();
    void columns_haveTheirMinimumWidthsAndLineUp();
    void everyLanguage_hasItsOwnMeanings_data() { ShippedTranslation::addRows(); }
    void everyLanguage_hasItsOwnMeanings();
    void everyKey_fitsItsKey_data() { ShippedTranslation::addRows(); }
    void everyKey_fitsItsKey();
    void mainWindow_showsItAsTab5InAScrollArea();
    void wheel_reachesTheTip();

private:
    static QVector<QLabel *> inReadingOrder(const QWidget &card);
    static QStringList texts(const QVector<QLabel *> &labels);
    static QStringList expectedTexts(const char *Row::*key);
    ScrHelperCtrlWidget *shownCard();

    MainWindowRig m_rig;
};

void TestScrHelperCtrlWidget::initTestCase()
{
    m_rig.start();
    m_rig.window().updateLanguage();
    m_rig.tabs()->setCurrentIndex(5);
}

ScrHelperCtrlWidget *TestScrHelperCtrlWidget::shownCard()
{
    return m_rig.find<ScrHelperCtrlWidget>();
}

// Line by line, each from the left.
QVector<QLabel *> TestScrHelperCtrlWidget::inReadingOrder(const QWidget &card)
{
    QVector<QLabel *> labels = card.findChildren<QLabel *>().toVector();
    std::sort(labels.begin(), labels.end(), [](const QLabel *one, const QLabel *other) {
        return std::make_pair(one->y(), one->x()) < std::make_pair(other->y(), other->x());
    });
    return labels;
}

QStringList TestScrHelperCtrlWidget::texts(const QVector<QLabel *> &labels)
{
    QStringList all;
    for (const QLabel *label : labels)
        all << label->text();
    return all;
}

QStringList TestScrHelperCtrlWidget::expectedTexts(const char *Row::*key)
{
    QStringList all;
    for (const Row &row : expectedRows)
        all << QString::fromUtf8(row.*key) << QString::fromUtf8(row.meaning);
    return all << QString::fromUtf8(tip);
}

void TestScrHelperCtrlWidget::form_hasTheGenericKeys()
{
    ScrHelperCtrlWidget card;
    card.show();
    QCOMPARE(texts(inReadingOrder(card)), expectedTexts(&Row::genericKey));
}

void TestScrHelperCtrlWidget::updateLanguage_showsTheMacKeys()
{
    ScrHelperCtrlWidget card;
    card.updateLanguage(); // as at start-up, before the card is shown
    QCOMPARE(texts(inReadingOrder(card)), expectedTexts(&Row::key));
    card.show();
    card.updateLanguage();
    QCOMPARE(texts(inReadingOrder(card)), expectedTexts(&Row::key));
}

void TestScrHelperCtrlWidget::columns_haveTheirMinimumWidthsAndLineUp()
{
    const QVector<QLabel *> labels = inReadingOrder(*shownCard());
    QCOMPARE(labels.size(), 2 * rowCount + 1);
    for (int row = 0; row < rowCount; ++row) {
        const QLabel *key = labels.at(2 * row);
        const QLabel *meaning = labels.at(2 * row + 1);
        QCOMPARE(key->minimumWidth(), 180);
        QCOMPARE(meaning->minimumWidth(), 360);
        QCOMPARE(key->x(), labels.at(0)->x());
        QCOMPARE(meaning->x(), labels.at(1)->x());
        QCOMPARE(key->y(), meaning->y());
        QVERIFY(key->geometry().right() < meaning->x());
        QCOMPARE(key->y() - labels.at(0)->y(), row * (labels.at(2)->y() - labels.at(0)->y()));
    }
    QCOMPARE(labels.last()->minimumWidth(), 360);
    QCOMPARE(labels.last()->x(), labels.at(0)->x());
}

void TestScrHelperCtrlWidget::everyLanguage_hasItsOwnMeanings()
{
    QFETCH(const QString, language);
    ScrHelperCtrlWidget card;
    const ShippedTranslation translation(language);
    QVERIFY(translation.isInstalled());
    card.updateLanguage();
    const QRegularExpression chinese(QStringLiteral("\\p{Han}"));
    int chineseTexts = 0;
    const QVector<QLabel *> labels = inReadingOrder(card);
    for (const QLabel *label : labels)
        chineseTexts += label->text().contains(chinese) ? 1 : 0;
    QCOMPARE(chineseTexts, language == QLatin1String("zh_CN") ? rowCount + 2 : 0);
}

// A key is a drawn key cap with a border; its text stands inside of it.
void TestScrHelperCtrlWidget::everyKey_fitsItsKey()
{
    QFETCH(const QString, language);
    const ShippedTranslation translation(language);
    m_rig.window().updateLanguage();
    const QVector<QLabel *> labels = inReadingOrder(*shownCard());
    for (int row = 0; row < rowCount; ++row) {
        const QLabel *key = labels.at(2 * row);
        QCOMPARE(key->toolTip(), QString());
        QVERIFY2(key->fontMetrics().boundingRect(key->text()).width() < 164, // 180 less its borders
                 qPrintable(key->text()));
    }
}

void TestScrHelperCtrlWidget::mainWindow_showsItAsTab5InAScrollArea()
{
    const auto *area = qobject_cast<QScrollArea *>(m_rig.tabs()->widget(5));
    QVERIFY(area);
    QCOMPARE(area->widget(), shownCard());
    QCOMPARE(area->verticalScrollBarPolicy(), Qt::ScrollBarAlwaysOn);
    QCOMPARE(area->horizontalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
    QVERIFY(shownCard()->width() <= area->viewport()->width()); // nothing is out of reach
}

void TestScrHelperCtrlWidget::wheel_reachesTheTip()
{
    auto *area = qobject_cast<QScrollArea *>(m_rig.tabs()->widget(5));
    const QLabel *last = inReadingOrder(*shownCard()).last();
    const auto isInView = [area, last] {
        return area->viewport()->rect().contains(
            QRect(last->mapTo(area->viewport(), QPoint()), last->size()));
    };
    QVERIFY(!isInView());
    const QPointF centre = area->viewport()->rect().center();
    for (int turn = 0; turn < 20; ++turn) {
        QWheelEvent event(centre, area->viewport()->mapToGlobal(centre.toPoint()), QPoint(),
                          QPoint(0, -120), Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(area->viewport(), &event);
    }
    QVERIFY(isInView());
    area->verticalScrollBar()->setValue(0);
}

QTEST_MAIN(TestScrHelperCtrlWidget)
#include "tst_scrhelperctrlwidget.moc"
