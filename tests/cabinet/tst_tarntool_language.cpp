#include "advancedsetup.h"
#include "cabinetrig.h"
#include "dictionary.h"

#include <QLabel>
#include <QtTest>

namespace {

const char *const captions[] = {"labelBoxWidth",  "labelBoxHeight", "labelModelRow",
                                "labelMoldelCol", "labelFontColor", "labelModelColor",
                                "labelScanColor"};
const char *const radios[] = {"radioBeginLeft", "radioBeginRight", "radioBackground",
                              "radioPicture"};

QStringList texts(const CabinetRig &rig)
{
    QStringList all;
    for (const char *name : captions)
        all << rig.child<QLabel>(name)->text();
    for (const char *name : radios)
        all << rig.radio(name)->text();
    return all << rig.setupButton()->text() << rig.layoutButton()->text();
}

QStringList sourceTexts()
{
    return QStringLiteral("模块宽度 模块高度 模块行数 模块列数 字体颜色 模块线颜色 扫描板颜色 "
                          "从左到右 从右到左 纯色背景 背景图 高级设置 定位")
        .split(QLatin1Char(' '));
}

QHash<QString, QString> marked(const QString &mark)
{
    QHash<QString, QString> dictionary;
    const QStringList sources = sourceTexts();
    for (const QString &text : sources)
        dictionary[text] = mark + QString::number(dictionary.size());
    return dictionary;
}

} // namespace

// The texts, on the controls and for those who cannot see them.
class TestTarnToolLanguage : public QObject
{
    Q_OBJECT

private slots:
    void language_isAppliedToEveryText();
    void language_thatDoesNotFitIsElided();
    void controlsWithoutAText_haveAccessibleNames();
};

void TestTarnToolLanguage::language_isAppliedToEveryText()
{
    const CabinetRig rig;
    rig.panel->setStyleSheet(QStringLiteral("QWidget { font-size: 12px; }"));
    rig.layOut();
    rig.click(rig.setupButton());
    auto *dialog = rig.panel->findChild<AdvancedSetup *>();
    rig.panel->updateLanguage();
    QCOMPARE(texts(rig), sourceTexts());
    {
        const Dictionary dictionary(marked(QStringLiteral("t")));
        rig.panel->updateLanguage();
        QCOMPARE(texts(rig).join(QLatin1Char(' ')),
                 QStringLiteral("t0 t1 t2 t3 t4 t5 t6 t7 t8 t9 t10 t11 t12"));
        QCOMPARE(dialog->windowTitle(), QStringLiteral("t11")); // the open dialog follows
    }
    rig.panel->updateLanguage();
    QCOMPARE(texts(rig), sourceTexts());
}

void TestTarnToolLanguage::language_thatDoesNotFitIsElided()
{
    const CabinetRig rig;
    const QString lengthy = QStringLiteral("and on ").repeated(9);
    const Dictionary dictionary(marked(lengthy));
    rig.panel->updateLanguage();
    const QStringList shown = texts(rig);
    for (const QString &text : shown)
        QVERIFY(text.endsWith(QChar(0x2026)));
    for (const char *name : captions)
        QVERIFY(rig.widget(name)->toolTip().startsWith(lengthy));
    for (const char *name : radios)
        QVERIFY(rig.widget(name)->toolTip().startsWith(lengthy));
}

void TestTarnToolLanguage::controlsWithoutAText_haveAccessibleNames()
{
    const CabinetRig rig;
    const QPair<const char *, const char *> names[] = {
        {"boxWidth", "模块宽度"},     {"boxHight", "模块高度"},   {"boxRow", "模块行数"},
        {"boxColumn", "模块列数"},    {"buttonFont", "字体颜色"}, {"buttonModeLine", "模块线颜色"},
        {"buttonScan", "扫描板颜色"}, {"labelColor", "纯色背景"}, {"labelimage", "背景图"}};
    for (const auto &name : names)
        QCOMPARE(rig.widget(name.first)->accessibleName(), QString::fromUtf8(name.second));
}

QTEST_MAIN(TestTarnToolLanguage)
#include "tst_tarntool_language.moc"
