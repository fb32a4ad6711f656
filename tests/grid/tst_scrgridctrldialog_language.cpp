#include "dictionary.h"
#include "gridrig.h"

#include <QLabel>
#include <QtTest>

namespace {

// Every text of the panel, the colours first and the start/pause button last.
QStringList texts(const GridRig &rig)
{
    QStringList all;
    for (int index = 0; index < 7; ++index)
        all << rig.colorButton(index)->text();
    for (const char letter : {'H', 'V', 'R', 'L'})
        all << rig.familyButton(QLatin1Char(letter))->text();
    all << rig.overlay()->text() << rig.merged()->text() << rig.aging()->text();
    all << rig.child<QLabel>("label_4")->text() << rig.child<QLabel>("label_2")->text();
    return all << rig.mixSettings()->text() << rig.pause()->text();
}

QHash<QString, QString> english()
{
    static constexpr std::pair<const char *, const char *> words[] = {
        {"红", "R"},          {"绿", "G"},     {"蓝", "B"},       {"白", "W"},
        {"黄", "Y"},          {"青", "C"},     {"紫", "P"},       {"横", "Hor"},
        {"竖", "Ver"},        {"右斜", "SR"},  {"左斜", "SL"},    {"网格叠加", "All"},
        {"混测", "Mix"},      {"老化", "Age"}, {"速度", "Speed"}, {"灰度", "Grey"},
        {"高级设置", "More"}, {"开始", "Go"},  {"暂停", "Stop"},  {"显示屏测试工具-网格", "Grid"},
    };
    QHash<QString, QString> dictionary;
    for (const auto &[source, word] : words)
        dictionary[QString::fromUtf8(source)] = QString::fromUtf8(word);
    return dictionary;
}

QStringList chinese()
{
    return QStringLiteral(
               "红 绿 蓝 白 黄 青 紫 横 竖 右斜 左斜 网格叠加 混测 老化 速度 灰度 高级设置 开始")
        .split(QLatin1Char(' '));
}

} // namespace

// The texts, on the controls and for those who cannot see them.
class TestScrGridCtrlDialogLanguage : public QObject
{
    Q_OBJECT

private slots:
    void language_isAppliedToEveryText();
    void language_thatDoesNotFitIsElided();
    void language_givesTheStartTextEvenWhileRunning();
    void controls_haveAccessibleNames_data();
    void controls_haveAccessibleNames();
};

void TestScrGridCtrlDialogLanguage::language_isAppliedToEveryText()
{
    const GridRig rig;
    rig.panel->setStyleSheet(QStringLiteral("QWidget { font-size: 12px; }"));
    QCOMPARE(texts(rig), chinese());
    {
        const Dictionary dictionary(english());
        rig.panel->updateLanguage();
        QCOMPARE(texts(rig).join(QLatin1Char(' ')),
                 QStringLiteral("R G B W Y C P Hor Ver SR SL All Mix Age Speed Grey More Go"));
        QCOMPARE(rig.panel->windowTitle(), QStringLiteral("Grid"));
        rig.clickFamilies("H");
        rig.tick();
        QCOMPARE(rig.pause()->text(), QStringLiteral("Stop"));
    }
    rig.panel->updateLanguage();
    QCOMPARE(texts(rig), chinese());
}

void TestScrGridCtrlDialogLanguage::language_thatDoesNotFitIsElided()
{
    const GridRig rig;
    QHash<QString, QString> lengthy = english();
    for (QString &word : lengthy)
        word += QStringLiteral(" and on").repeated(9);
    const Dictionary dictionary(lengthy);
    rig.panel->updateLanguage();

    const QWidget *widgets[] = {rig.familyButton(QLatin1Char('H')),
                                rig.overlay(),
                                rig.merged(),
                                rig.aging(),
                                rig.pause(),
                                rig.mixSettings(),
                                rig.child<QLabel>("label_2"),
                                rig.child<QLabel>("label_4")};
    for (const QWidget *widget : widgets) {
        QVERIFY(widget->toolTip().endsWith(QStringLiteral(" and on")));
        QVERIFY(widget->property("text").toString().endsWith(QChar(0x2026)));
    }
}

void TestScrGridCtrlDialogLanguage::language_givesTheStartTextEvenWhileRunning()
{
    const GridRig rig;
    rig.clickFamilies("H");
    rig.tick();
    QCOMPARE(rig.pause()->text(), QStringLiteral("暂停"));
    rig.panel->updateLanguage();
    QCOMPARE(rig.pause()->text(), QStringLiteral("开始"));
    rig.tick();
    QCOMPARE(rig.pause()->text(), QStringLiteral("暂停"));
}

void TestScrGridCtrlDialogLanguage::controls_haveAccessibleNames_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("expected");
    QTest::newRow("grey slider") << QStringLiteral("hScrollBarGrayLevel") << QStringLiteral("灰度");
    QTest::newRow("grey spin box") << QStringLiteral("labelGrayLevel") << QStringLiteral("灰度");
    QTest::newRow("speed slider") << QStringLiteral("hScrollBarSpeed") << QStringLiteral("速度");
    QTest::newRow("speed spin box") << QStringLiteral("labelSpeed") << QStringLiteral("速度");
    QTest::newRow("red") << QStringLiteral("radioButtonRed") << QStringLiteral("红");
    QTest::newRow("purple") << QStringLiteral("radioButtonPurple") << QStringLiteral("紫");
    QTest::newRow("green lamp") << QStringLiteral("signalGreenButton")
                                << QStringLiteral("运行指示灯");
    QTest::newRow("grey lamp") << QStringLiteral("signalGreyButton")
                               << QStringLiteral("运行指示灯");
}

void TestScrGridCtrlDialogLanguage::controls_haveAccessibleNames()
{
    QFETCH(const QString, name);
    const GridRig rig;
    rig.panel->updateLanguage();
    const auto *widget = rig.panel->findChild<QWidget *>(name);
    QVERIFY(widget);

    QTEST(widget->accessibleName(), "expected");
}

QTEST_MAIN(TestScrGridCtrlDialogLanguage)
#include "tst_scrgridctrldialog_language.moc"
