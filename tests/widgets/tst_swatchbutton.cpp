#include "rows.h"
#include "swatchbutton.h"

#include <QSignalSpy>
#include <QtTest>

namespace {

constexpr QRgb fill = 0xff204080;

void prepare(SwatchButton &button, const QString &text)
{
    button.resize(42, 42);
    button.setText(text);
}

// As above, filled by its style sheet.
void prepareFilled(SwatchButton &button, const QString &text)
{
    prepare(button, text);
    button.setStyleSheet(QStringLiteral("SwatchButton { background-color: #204080; color: white; }"
                                        "SwatchButton::indicator { width: 0px; height: 0px; }"));
}

QImage rendered(SwatchButton &button)
{
    return button.grab().toImage().convertToFormat(QImage::Format_RGB32);
}

// Where anything but the fill is to be seen.
QRect inkOf(const QImage &image)
{
    QRect ink;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixel(x, y) != fill)
                ink |= QRect(x, y, 1, 1);
        }
    }
    return ink;
}

} // namespace

class TestSwatchButton : public QObject
{
    Q_OBJECT

private slots:
    void wholeArea_answersTheMouse_data();
    void wholeArea_answersTheMouse();
    void outside_doesNotAnswer();

    void styleSheet_fillsTheWholeArea();
    void fieldOfTheStyleSheet_leavesItsGap();
    void text_standsInTheMiddle_data();
    void text_standsInTheMiddle();
};

void TestSwatchButton::wholeArea_answersTheMouse_data()
{
    QTest::addColumn<QPoint>("position");
    QTest::addColumn<QString>("text");
    for (const char *text : {"", "R"}) {
        const QString shown = QString::fromLatin1(text);
        QTest::addRow("top left '%s'", text) << QPoint(0, 0) << shown;
        QTest::addRow("top right '%s'", text) << QPoint(41, 0) << shown;
        QTest::addRow("bottom left '%s'", text) << QPoint(0, 41) << shown;
        QTest::addRow("bottom right '%s'", text) << QPoint(41, 41) << shown;
        QTest::addRow("centre '%s'", text) << QPoint(21, 21) << shown;
    }
}

void TestSwatchButton::wholeArea_answersTheMouse()
{
    QFETCH(const QPoint, position);
    QFETCH(const QString, text);
    SwatchButton button;
    prepare(button, text);
    QSignalSpy clicked(&button, &QAbstractButton::clicked);
    QTest::mouseClick(&button, Qt::LeftButton, Qt::NoModifier, position);

    QCOMPARE(clicked.count(), 1);
    QVERIFY(button.isChecked());
}

void TestSwatchButton::outside_doesNotAnswer()
{
    SwatchButton button;
    prepare(button, QStringLiteral("R"));
    // Pressed inside, released outside: no click.
    QTest::mousePress(&button, Qt::LeftButton, Qt::NoModifier, QPoint(5, 5));
    QTest::mouseRelease(&button, Qt::LeftButton, Qt::NoModifier, QPoint(60, 5));
    QVERIFY(!button.isChecked());
}

void TestSwatchButton::styleSheet_fillsTheWholeArea()
{
    SwatchButton button;
    prepareFilled(button, QString());
    QVERIFY(inkOf(rendered(button)).isNull());
}

// What the style sheet leaves out of the field shows the ground and not the field of another state.
void TestSwatchButton::fieldOfTheStyleSheet_leavesItsGap()
{
    QWidget window;
    window.setStyleSheet(
        QStringLiteral("QWidget { background-color: black }"
                       "SwatchButton { background-color: red; border: 2px solid red; padding: 2px }"
                       "SwatchButton:checked { background-clip: content; border-color: white }"));
    auto *button = new SwatchButton(&window);
    button->setGeometry(0, 0, 42, 42);
    window.resize(42, 42);
    QCOMPARE(window.grab().toImage().pixelColor(2, 21), QColor(Qt::red));
    button->setChecked(true);
    const QImage image = window.grab().toImage();
    QCOMPARE(image.pixelColor(0, 21), QColor(Qt::white));
    QCOMPARE(image.pixelColor(2, 21), QColor(Qt::black));
    QCOMPARE(image.pixelColor(4, 21), QColor(Qt::red));
}

void TestSwatchButton::text_standsInTheMiddle_data()
{
    addRows<bool>("checked", {{"unchecked", false}, {"checked", true}});
}

void TestSwatchButton::text_standsInTheMiddle()
{
    QFETCH(const bool, checked);
    SwatchButton button;
    // Neither ascends nor descends far, so that its ink is centred as its line is.
    prepareFilled(button, QStringLiteral("H"));
    button.setChecked(checked);
    const QRect ink = inkOf(rendered(button));

    QVERIFY(ink.isValid());
    QVERIFY2(qAbs(ink.center().x() - 20) <= 2, qPrintable(QString::number(ink.center().x())));
    QVERIFY2(qAbs(ink.center().y() - 20) <= 4, qPrintable(QString::number(ink.center().y())));
}

QTEST_MAIN(TestSwatchButton)
#include "tst_swatchbutton.moc"
