#include "commonhelper.h"
#include "dictionary.h"
#include "textwidth.h"

#include <QCheckBox>
#include <QFile>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>

namespace {

const QString longText = QStringLiteral("A long translated text that has no room");

// One of the four kinds of widget that texts are fitted to.
class Fitted
{
public:
    explicit Fitted(const QString &kind)
    {
        if (kind == QLatin1String("label"))
            m_widget = std::make_unique<QLabel>();
        else if (kind == QLatin1String("push button"))
            m_widget = std::make_unique<QPushButton>();
        else if (kind == QLatin1String("check box"))
            m_widget = std::make_unique<QCheckBox>();
        else
            m_widget = std::make_unique<QRadioButton>();
    }

    void setText(const QString &text)
    {
        if (auto *label = qobject_cast<QLabel *>(m_widget.get()))
            CommonHelper::setQLabelText(label, text);
        if (auto *button = qobject_cast<QPushButton *>(m_widget.get()))
            CommonHelper::setQPushButtonText(button, text);
        if (auto *checkBox = qobject_cast<QCheckBox *>(m_widget.get()))
            CommonHelper::setQCheckBoxText(checkBox, text);
        if (auto *radioButton = qobject_cast<QRadioButton *>(m_widget.get()))
            CommonHelper::setQRadioButtonText(radioButton, text);
    }

    QString text() const { return m_widget->property("text").toString(); }
    QString toolTip() const { return m_widget->toolTip(); }
    void setWidth(int width) { m_widget->resize(width, 20); }
    void setStyleSheet(const QString &sheet) { m_widget->setStyleSheet(sheet); }
    void setFont(const QFont &font) { m_widget->setFont(font); }
    int measured(const QString &text) const { return textWidth(m_widget->fontMetrics(), text); }

private:
    std::unique_ptr<QWidget> m_widget;
};

void addKinds()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<int>("indicator"); // what the widget's indicator takes of its width
    QTest::newRow("label") << QStringLiteral("label") << 0;
    QTest::newRow("push button") << QStringLiteral("push button") << 0;
    QTest::newRow("check box") << QStringLiteral("check box") << 20;
    QTest::newRow("radio button") << QStringLiteral("radio button") << 20;
}

} // namespace

class TestCommonHelper : public QObject
{
    Q_OBJECT

private slots:
    void textExactlyAsWideAsTheWidget_isShownWholeWithoutAToolTip_data();
    void textExactlyAsWideAsTheWidget_isShownWholeWithoutAToolTip();
    void textOnePixelTooWide_isElided_data();
    void textOnePixelTooWide_isElided();
    void longTextOnA100PixelWidget_isElidedWithTheWholeAsToolTip_data();
    void longTextOnA100PixelWidget_isElidedWithTheWholeAsToolTip();
    void textThatBecomesShortAgain_clearsTheToolTip_data();
    void textThatBecomesShortAgain_clearsTheToolTip();
    void widthAtTheCall_counts_data();
    void widthAtTheCall_counts();
    void fontOfTheWidget_counts_data();
    void fontOfTheWidget_counts();
    void fontOfTheStyleSheet_countsBeforeTheFirstShow_data();
    void fontOfTheStyleSheet_countsBeforeTheFirstShow();
    void widgetWithoutRoom_showsLittleAndTellsTheText_data();
    void widgetWithoutRoom_showsLittleAndTellsTheText();
    void emptyText_isShown_data();
    void emptyText_isShown();

    void colorIndex_yellowIs0TheSameAsRed_data();
    void colorIndex_yellowIs0TheSameAsRed();
    void colorName_ofATestColourIsTranslated_data();
    void colorName_ofATestColourIsTranslated();
    void colorName_ofAnotherColourIsNull_data();
    void colorName_ofAnotherColourIsNull();

    void style_onAMissingFileIsEmpty();
    void style_isReadAsUtf8();
    void style_ofAnEmptyFileIsEmpty();
    void style_ofAFolderIsEmpty();
};

void TestCommonHelper::textExactlyAsWideAsTheWidget_isShownWholeWithoutAToolTip_data()
{
    addKinds();
}

// In fonts of many sizes, since a text may be a fraction of a pixel wider than it measures.
void TestCommonHelper::textExactlyAsWideAsTheWidget_isShownWholeWithoutAToolTip()
{
    QFETCH(QString, kind);
    QFETCH(int, indicator);
    Fitted widget(kind);
    for (const QString &family :
         {QStringLiteral("DejaVu Sans"), QStringLiteral("Liberation Sans")}) {
        for (int pixels = 8; pixels <= 40; ++pixels) {
            QFont font(family);
            font.setPixelSize(pixels);
            widget.setFont(font);
            for (const QString &text :
                 {longText, QStringLiteral("Automatic"), QStringLiteral("老化")}) {
                widget.setWidth(widget.measured(text) + indicator);
                widget.setText(text);
                QCOMPARE(widget.text(), text);
                QCOMPARE(widget.toolTip(), QString());
            }
        }
    }
}

void TestCommonHelper::textOnePixelTooWide_isElided_data()
{
    addKinds();
}

void TestCommonHelper::textOnePixelTooWide_isElided()
{
    QFETCH(const QString, kind);
    QFETCH(const int, indicator);
    Fitted widget(kind);
    widget.setWidth(widget.measured(longText) + indicator - 1);
    widget.setText(longText);

    QVERIFY(widget.text() != longText);
    QVERIFY(widget.text().endsWith(QChar(0x2026)));
    QCOMPARE(widget.toolTip(), longText);
}

void TestCommonHelper::longTextOnA100PixelWidget_isElidedWithTheWholeAsToolTip_data()
{
    addKinds();
}

void TestCommonHelper::longTextOnA100PixelWidget_isElidedWithTheWholeAsToolTip()
{
    QFETCH(const QString, kind);
    QFETCH(const int, indicator);
    Fitted widget(kind);
    widget.setWidth(100);
    widget.setText(longText);

    const QString shown = widget.text();
    const QString ellipsis(QChar(0x2026));
    QVERIFY(shown.endsWith(ellipsis));
    const QString kept = shown.chopped(1);
    QVERIFY(!kept.isEmpty());
    QVERIFY(longText.startsWith(kept));
    QVERIFY(widget.measured(shown) <= 100 - indicator);
    // No more is cut than has to be, but for a blank at the end.
    QVERIFY(widget.measured(longText.left(kept.size() + 2) + ellipsis) > 100 - indicator);
    QCOMPARE(widget.toolTip(), longText);
}

void TestCommonHelper::textThatBecomesShortAgain_clearsTheToolTip_data()
{
    addKinds();
}

void TestCommonHelper::textThatBecomesShortAgain_clearsTheToolTip()
{
    QFETCH(const QString, kind);
    Fitted widget(kind);
    widget.setWidth(100);
    widget.setText(longText);
    QCOMPARE(widget.toolTip(), longText);
    widget.setText(QStringLiteral("ok"));

    QCOMPARE(widget.text(), QStringLiteral("ok"));
    QCOMPARE(widget.toolTip(), QString());
}

void TestCommonHelper::widthAtTheCall_counts_data()
{
    addKinds();
}

void TestCommonHelper::widthAtTheCall_counts()
{
    QFETCH(const QString, kind);
    Fitted widget(kind);
    widget.setWidth(100);
    widget.setText(longText);
    widget.setWidth(2000);
    QVERIFY(widget.text() != longText);
    widget.setText(longText);

    QCOMPARE(widget.text(), longText);
    QCOMPARE(widget.toolTip(), QString());
}

void TestCommonHelper::fontOfTheWidget_counts_data()
{
    addKinds();
}

void TestCommonHelper::fontOfTheWidget_counts()
{
    QFETCH(const QString, kind);
    QFETCH(const int, indicator);
    Fitted widget(kind);
    widget.setWidth(widget.measured(longText) + indicator);
    QFont font;
    font.setPixelSize(60);
    widget.setFont(font);
    widget.setText(longText);

    QVERIFY(widget.text() != longText);
    QCOMPARE(widget.toolTip(), longText);
}

void TestCommonHelper::fontOfTheStyleSheet_countsBeforeTheFirstShow_data()
{
    addKinds();
}

void TestCommonHelper::fontOfTheStyleSheet_countsBeforeTheFirstShow()
{
    QFETCH(const QString, kind);
    QFETCH(const int, indicator);
    Fitted widget(kind);
    widget.setWidth(widget.measured(longText) + indicator);
    widget.setStyleSheet(QStringLiteral("font-size: 60px"));
    widget.setText(longText);

    QVERIFY(widget.text() != longText);
    QCOMPARE(widget.toolTip(), longText);
}

void TestCommonHelper::widgetWithoutRoom_showsLittleAndTellsTheText_data()
{
    addKinds();
}

void TestCommonHelper::widgetWithoutRoom_showsLittleAndTellsTheText()
{
    QFETCH(const QString, kind);
    Fitted widget(kind);
    for (const int width : {0, 1, 10}) {
        widget.setWidth(width);
        widget.setText(longText);
        QVERIFY(widget.text().size() <= 2);
        QCOMPARE(widget.toolTip(), longText);
    }
}

void TestCommonHelper::emptyText_isShown_data()
{
    addKinds();
}

void TestCommonHelper::emptyText_isShown()
{
    QFETCH(const QString, kind);
    Fitted widget(kind);
    widget.setWidth(100);
    widget.setText(longText);
    widget.setText(QString());
    QCOMPARE(widget.text(), QString());
    QCOMPARE(widget.toolTip(), QString());
}

void TestCommonHelper::colorIndex_yellowIs0TheSameAsRed_data()
{
    QTest::addColumn<QColor>("color");
    QTest::addColumn<int>("index");
    QTest::newRow("red") << QColor(Qt::red) << 0;
    QTest::newRow("green") << QColor(Qt::green) << 1;
    QTest::newRow("blue") << QColor(Qt::blue) << 2;
    QTest::newRow("white") << QColor(Qt::white) << 3;
    QTest::newRow("yellow") << QColor(Qt::yellow) << 0;
    QTest::newRow("cyan") << QColor(Qt::cyan) << 0;
    QTest::newRow("magenta") << QColor(Qt::magenta) << 0;
    QTest::newRow("black") << QColor(Qt::black) << 0;
    QTest::newRow("invalid") << QColor() << 0;
    QTest::newRow("white, translucent") << QColor(255, 255, 255, 254) << 0;
    QTest::newRow("green of another model") << QColor::fromHsv(120, 255, 255) << 0;
}

void TestCommonHelper::colorIndex_yellowIs0TheSameAsRed()
{
    QFETCH(const QColor, color);
    QTEST(CommonHelper::getColorIndex(color), "index");
}

void TestCommonHelper::colorName_ofATestColourIsTranslated_data()
{
    QTest::addColumn<QColor>("color");
    QTest::addColumn<QString>("name");
    QTest::newRow("red") << QColor(Qt::red) << QStringLiteral("红");
    QTest::newRow("red by its channels") << QColor(255, 0, 0) << QStringLiteral("红");
    QTest::newRow("green") << QColor(Qt::green) << QStringLiteral("绿");
    QTest::newRow("blue") << QColor(Qt::blue) << QStringLiteral("蓝");
    QTest::newRow("white") << QColor(Qt::white) << QStringLiteral("白");
    QTest::newRow("yellow") << QColor(Qt::yellow) << QStringLiteral("黄");
    QTest::newRow("cyan") << QColor(Qt::cyan) << QStringLiteral("青");
    QTest::newRow("magenta") << QColor(Qt::magenta) << QStringLiteral("紫");
}

void TestCommonHelper::colorName_ofATestColourIsTranslated()
{
    QFETCH(const QColor, color);
    QFETCH(const QString, name);
    QCOMPARE(CommonHelper::getColorName(color), name);
    const Dictionary marked(QStringLiteral("!"), "CommonHelper");
    QCOMPARE(CommonHelper::getColorName(color), name + QLatin1Char('!'));
}

void TestCommonHelper::colorName_ofAnotherColourIsNull_data()
{
    QTest::addColumn<QColor>("color");
    QTest::newRow("red, half transparent") << QColor(255, 0, 0, 128);
    QTest::newRow("black") << QColor(Qt::black);
    QTest::newRow("invalid") << QColor();
    QTest::newRow("red of another model") << QColor::fromHsv(0, 255, 255);
}

void TestCommonHelper::colorName_ofAnotherColourIsNull()
{
    QFETCH(const QColor, color);
    QVERIFY(CommonHelper::getColorName(color).isNull());
    const Dictionary marked(QStringLiteral("!"), "CommonHelper");
    QVERIFY(CommonHelper::getColorName(color).isNull());
}

void TestCommonHelper::style_onAMissingFileIsEmpty()
{
    const QTemporaryDir folder;
    QVERIFY(CommonHelper::setStyle(folder.filePath(QStringLiteral("none.css"))).isEmpty());
    QVERIFY(CommonHelper::setStyle(QStringLiteral(":/qss/none.css")).isEmpty());
    QVERIFY(CommonHelper::setStyle(QString()).isEmpty());
}

void TestCommonHelper::style_isReadAsUtf8()
{
    const QTemporaryDir folder;
    const QString text = QStringLiteral("/* 灰度 é */\nQLabel { color: red; }\n").repeated(1000);
    QFile file(folder.filePath(QStringLiteral("a style.css")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(text.toUtf8());
    file.close();
    QCOMPARE(CommonHelper::setStyle(file.fileName()), text);
}

void TestCommonHelper::style_ofAnEmptyFileIsEmpty()
{
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("empty.css")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.close();
    QVERIFY(CommonHelper::setStyle(file.fileName()).isEmpty());
}

void TestCommonHelper::style_ofAFolderIsEmpty()
{
    const QTemporaryDir folder;
    QVERIFY(CommonHelper::setStyle(folder.path()).isEmpty());
}

QTEST_MAIN(TestCommonHelper)
#include "tst_commonhelper.moc"
