#include "colordialog.h"
#include "desktopscale.h"
#include "rows.h"

#include <QApplication>
#include <QColorDialog>
#include <QDesktopWidget>
#include <QLabel>
#include <QTimer>
#include <QtTest>

class TestColorDialog : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { ColorDialog::setAnswer({}); }

    void answer_isAskedWithTheInitialColour();
    void withoutAnswer_theOperatorIsAskedAboveAllWindows_data();
    void withoutAnswer_theOperatorIsAskedAboveAllWindows();
    void texts_followTheScaleOfTheControls();
};

void TestColorDialog::answer_isAskedWithTheInitialColour()
{
    QList<QColor> asked;
    ColorDialog::setAnswer([&asked](const QColor &initial) {
        asked << initial;
        return QColor(1, 2, 3);
    });

    QCOMPARE(ColorDialog::getColor(Qt::green), QColor(1, 2, 3));
    QCOMPARE(ColorDialog::getColor(Qt::blue), QColor(1, 2, 3));
    QCOMPARE(asked, (QList<QColor>{Qt::green, Qt::blue}));
}

void TestColorDialog::withoutAnswer_theOperatorIsAskedAboveAllWindows_data()
{
    addRows<bool>("accepted", {{"chosen", true}, {"cancelled", false}});
}

void TestColorDialog::withoutAnswer_theOperatorIsAskedAboveAllWindows()
{
    QFETCH(const bool, accepted);
    ColorDialog::setAnswer([](const QColor &) { return QColor(1, 2, 3); });
    ColorDialog::setAnswer({});
    QColor shown;
    bool onTop = false;
    const QWidget *parent = QApplication::desktop(); // anything but none
    QTimer::singleShot(0, this, [&] {
        auto *dialog = qobject_cast<QColorDialog *>(QApplication::activeModalWidget());
        QVERIFY(dialog);
        shown = dialog->currentColor();
        parent = dialog->parentWidget();
        onTop = dialog->windowFlags().testFlag(Qt::WindowStaysOnTopHint);
        dialog->setCurrentColor(Qt::magenta);
        accepted ? dialog->accept() : dialog->reject();
    });
    const QColor chosen = ColorDialog::getColor(Qt::green);

    QCOMPARE(shown, QColor(Qt::green));
    QVERIFY(!parent);
    QVERIFY(onTop);
    QCOMPARE(chosen, accepted ? QColor(Qt::magenta) : QColor());
}

void TestColorDialog::texts_followTheScaleOfTheControls()
{
    QFont font;
    DesktopScale::request(QStringLiteral("2"));
    QTimer::singleShot(0, this, [&font] {
        font = QApplication::activeModalWidget()->findChild<QLabel *>()->font();
        QApplication::activeModalWidget()->close();
    });
    ColorDialog::getColor(Qt::green);
    DesktopScale::request(QStringLiteral("1"));
    QCOMPARE(font.pixelSize(), 2 * DesktopScale::inPixels(QApplication::font()).pixelSize());
}

QTEST_MAIN(TestColorDialog)
#include "tst_colordialog.moc"
