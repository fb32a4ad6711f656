#include "customerqlabel.h"
#include "rows.h"
#include "swatch.h"

#include <QColor>
#include <QSignalSpy>
#include <QtTest>

class TestSwatch : public QObject
{
    Q_OBJECT

private slots:
    void style_hasItsOneForm();
    void style_isRecognised_data();
    void style_isRecognised();
    void clickableLabel_isClickedBySpace();
};

void TestSwatch::style_hasItsOneForm()
{
    QCOMPARE(Swatch::style(QColor(1, 20, 255)), QStringLiteral("background-color: rgb(1,20,255)"));
    QCOMPARE(Swatch::style(QColor::fromHsv(120, 255, 255)),
             QStringLiteral("background-color: rgb(0,255,0)"));
}

void TestSwatch::style_isRecognised_data()
{
    const QString style = QStringLiteral("background-color: rgb(1,20,255)");
    const Table<QString, bool> row("text", "isStyle");
    row("whole", style, true);
    row("with more behind", style + QStringLiteral("; border: 9px"), false);
    row("with a new line behind", style + QLatin1Char('\n'), false);
    row("with more before", QStringLiteral("x") + style, false);
    row("too many digits", QStringLiteral("background-color: rgb(1,2,3000)"), false);
    row("a file", QStringLiteral("background-image: url(x)"), false);
    row("empty", QString(), false);
}

void TestSwatch::style_isRecognised()
{
    QFETCH(const QString, text);
    QTEST(Swatch::isStyle(text), "isStyle");
}

void TestSwatch::clickableLabel_isClickedBySpace()
{
    QWidget window;
    CustomerQlabel label(&window);
    Swatch::makeClickable(&label);
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    label.setFocus();
    const QSignalSpy clicked(&label, &CustomerQlabel::clicked);
    QTest::keyClick(&label, Qt::Key_Space);
    QCOMPARE(clicked.size(), 1);
    QCOMPARE(label.focusPolicy(), Qt::StrongFocus);
}

QTEST_MAIN(TestSwatch)
#include "tst_swatch.moc"
