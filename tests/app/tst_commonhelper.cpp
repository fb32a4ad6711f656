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

#include <array>
#include <functional>
#include <memory>

namespace {

const QString longText = QStringLiteral("A long translated text that has no room");

// A widget that texts are fitted to.
struct Fitted
{
    QString text() const { return widget->property("text").toString(); }
    QString toolTip() const { return widget->toolTip(); }
    void setWidth(int width) const { widget->resize(width, 20); }
    int measured(const QString &text) const { return textWidth(widget->fontMetrics(), text); }

    std::unique_ptr<QWidget> widget;
    int indicator; // what it takes of the width
    std::function<void(const QString &)> setText;
};

template<typename Widget>
Fitted fitted(void (*setText)(Widget *, const QString &), int indicator)
{
    auto *const widget = new Widget;
    return {std::unique_ptr<QWidget>(widget), indicator,
            [=](const QString &text) { setText(widget, text); }};
}

std::array<Fitted, 4> oneOfEachKind()
{
    return {fitted(&CommonHelper::setQLabelText, 0), fitted(&CommonHelper::setQPushButtonText, 0),
            fitted(&CommonHelper::setQCheckBoxText, 20),
            fitted(&CommonHelper::setQRadioButtonText, 20)};
}

} // namespace

class TestCommonHelper : public QObject
{
    Q_OBJECT

private slots:
    void textExactlyAsWideAsTheWidget_isShownWholeWithoutAToolTip();
    void textOnePixelTooWide_isElided();
    void longTextOnA100PixelWidget_isElidedWithTheWholeAsToolTip();
    void text_isFittedAtEachCall();
    void fontOfTheStyleSheet_countsBeforeTheFirstShow();
    void widgetWithoutRoom_showsLittleAndTellsTheText();

    void colorIndex_yellowIs0TheSameAsRed();
    void colorName_ofAPureColourIsTranslated();

    void style_isReadAsUtf8();
    void style_ofNoFileIsEmpty();
};

// In fonts of many sizes, since a text may be a fraction of a pixel wider than it measures.
void TestCommonHelper::textExactlyAsWideAsTheWidget_isShownWholeWithoutAToolTip()
{
    for (const Fitted &widget : oneOfEachKind()) {
        for (const QString &family :
             {QStringLiteral("DejaVu Sans"), QStringLiteral("Liberation Sans")}) {
            for (int pixels = 8; pixels <= 40; ++pixels) {
                QFont font(family);
                font.setPixelSize(pixels);
                widget.widget->setFont(font);
                for (const QString &text :
                     {longText, QStringLiteral("Automatic"), QStringLiteral("老化")}) {
                    widget.setWidth(widget.measured(text) + widget.indicator);
                    widget.setText(text);
                    QCOMPARE(widget.text(), text);
                    QCOMPARE(widget.toolTip(), QString());
                }
            }
        }
    }
}

void TestCommonHelper::textOnePixelTooWide_isElided()
{
    for (const Fitted &widget : oneOfEachKind()) {
        widget.setWidth(widget.measured(longText) + widget.indicator - 1);
        widget.setText(longText);

        QVERIFY(widget.text() != longText);
        QVERIFY(widget.text().endsWith(QChar(0x2026)));
        QCOMPARE(widget.toolTip(), longText);
    }
}

void TestCommonHelper::longTextOnA100PixelWidget_isElidedWithTheWholeAsToolTip()
{
    for (const Fitted &widget : oneOfEachKind()) {
        widget.setWidth(100);
        widget.setText(longText);

        const QString shown = widget.text();
        const QString ellipsis(QChar(0x2026));
        QVERIFY(shown.endsWith(ellipsis));
        const QString kept = shown.chopped(1);
        QVERIFY(!kept.isEmpty());
        QVERIFY(longText.startsWith(kept));
        QVERIFY(widget.measured(shown) <= 100 - widget.indicator);
        // No more is cut than has to be, but for a blank at the end.
        QVERIFY(widget.measured(longText.left(kept.size() + 2) + ellipsis)
                > 100 - widget.indicator);
        QCOMPARE(widget.toolTip(), longText);
    }
}

void TestCommonHelper::text_isFittedAtEachCall()
{
    for (const Fitted &widget : oneOfEachKind()) {
        for (const QString &text : {QStringLiteral("ok"), QString()}) {
            widget.setWidth(100);
            widget.setText(longText);
            QCOMPARE(widget.toolTip(), longText);
            widget.setText(text);
            QCOMPARE(widget.text(), text);
            QCOMPARE(widget.toolTip(), QString());
        }
        widget.setText(longText);
        widget.setWidth(2000);
        QVERIFY(widget.text() != longText);
        widget.setText(longText);
        QCOMPARE(widget.text(), longText);
        QCOMPARE(widget.toolTip(), QString());
    }
}

void TestCommonHelper::fontOfTheStyleSheet_countsBeforeTheFirstShow()
{
    for (const Fitted &widget : oneOfEachKind()) {
        widget.setWidth(widget.measured(longText) + widget.indicator);
        widget.widget->setStyleSheet(QStringLiteral("font-size: 60px"));
        widget.setText(longText);

        QVERIFY(widget.text() != longText);
        QCOMPARE(widget.toolTip(), longText);
    }
}

void TestCommonHelper::widgetWithoutRoom_showsLittleAndTellsTheText()
{
    for (const Fitted &widget : oneOfEachKind()) {
        for (const int width : {0, 1, 10}) {
            widget.setWidth(width);
            widget.setText(longText);
            QVERIFY(widget.text().size() <= 2);
            QCOMPARE(widget.toolTip(), longText);
        }
    }
}

void TestCommonHelper::colorIndex_yellowIs0TheSameAsRed()
{
    QCOMPARE(CommonHelper::getColorIndex(Qt::red), 0);
    QCOMPARE(CommonHelper::getColorIndex(Qt::green), 1);
    QCOMPARE(CommonHelper::getColorIndex(Qt::blue), 2);
    QCOMPARE(CommonHelper::getColorIndex(Qt::white), 3);
    for (const QColor &color : {QColor(Qt::yellow), QColor(Qt::magenta), QColor(Qt::black),
                                QColor(), QColor::fromHsv(120, 255, 255)})
        QCOMPARE(CommonHelper::getColorIndex(color), 0);
}

void TestCommonHelper::colorName_ofAPureColourIsTranslated()
{
    QCOMPARE(CommonHelper::getColorName(QColor(255, 0, 0)), QStringLiteral("红"));
    const Dictionary marked(QStringLiteral("!"), "CommonHelper");
    QCOMPARE(CommonHelper::getColorName(Qt::magenta), QStringLiteral("紫!"));
    QVERIFY(CommonHelper::getColorName(QColor(255, 0, 0, 128)).isNull());
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

// Nor a folder, nor no name.
void TestCommonHelper::style_ofNoFileIsEmpty()
{
    const QTemporaryDir folder;
    for (const QString &path : {folder.filePath(QStringLiteral("none.css")), folder.path(),
                                QStringLiteral(":/qss/none.css"), QString()})
        QVERIFY(CommonHelper::setStyle(path).isEmpty());
}

QTEST_MAIN(TestCommonHelper)
#include "tst_commonhelper.moc"
