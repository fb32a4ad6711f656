#include "colordialog.h"
#include "paintcounter.h"
#include "qtcolorbutton.h"
#include "rows.h"

#include <QColorDialog>
#include <QDrag>
#include <QDragEnterEvent>
#include <QMimeData>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

#include <functional>
#include <memory>

namespace {

const QColor translucent(200, 100, 40, 128);

} // namespace

class TestQtColorButton : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void freshButton_hasNoColourAndIsCheckeredWithAlpha();
    void setters_emitNothingAndRepaintOnlyAChange();
    void click_asksForAColourWithAlphaOrWithout_data();
    void click_asksForAColourWithAlphaOrWithout();
    void cancellingTheDialogOrChoosingTheSameColour_emitsNothing_data();
    void cancellingTheDialogOrChoosingTheSameColour_emitsNothing();

    void moveOfExactlyTheStartDragDistance_doesNotStartADrag_data();
    void moveOfExactlyTheStartDragDistance_doesNotStartADrag();
    void moveWithAnotherButton_doesNotStartADrag();
    void drag_carriesTheColour_data();
    void drag_carriesTheColour();
    void dragOverTheButton_showsTheDraggedColourAndLeavingRestores();
    void dragWithoutAColour_isRefused_data();
    void dragWithoutAColour_isRefused();
    void drop_takesTheColourAndEmits();
    void droppingTheSameColour_emitsNothing();

private:
    QImage picture() { return m_button->grab().toImage().convertToFormat(QImage::Format_RGB32); }
    QColor shownColor() { return picture().pixelColor(m_button->rect().center()); }
    void dragTo(const QPoint &position, Qt::MouseButton mouseButton = Qt::LeftButton);
    QDrag *startedDrag() { return m_button->findChild<QDrag *>(); }
    bool enter(const QMimeData &data);
    void leave();
    bool drop(const QMimeData &data);

    std::unique_ptr<QtColorButton> m_button;
    std::unique_ptr<QSignalSpy> m_changes;
};

void TestQtColorButton::init()
{
    m_button = std::make_unique<QtColorButton>();
    m_button->resize(40, 40);
    m_changes = std::make_unique<QSignalSpy>(m_button.get(), &QtColorButton::colorChanged);
}

void TestQtColorButton::cleanup()
{
    ColorDialog::setAnswer({});
    m_changes.reset();
    m_button.reset();
}

void TestQtColorButton::dragTo(const QPoint &position, Qt::MouseButton mouseButton)
{
    const QPoint start(20, 20);
    QTest::mousePress(m_button.get(), mouseButton, Qt::NoModifier, start);
    QMouseEvent move(QEvent::MouseMove, position, m_button->mapToGlobal(position), Qt::NoButton,
                     mouseButton, Qt::NoModifier);
    QCoreApplication::sendEvent(m_button.get(), &move);
}

bool TestQtColorButton::enter(const QMimeData &data)
{
    QDragEnterEvent event(QPoint(9, 9), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    event.ignore();
    QCoreApplication::sendEvent(m_button.get(), &event);
    return event.isAccepted();
}

void TestQtColorButton::leave()
{
    QDragLeaveEvent event;
    QCoreApplication::sendEvent(m_button.get(), &event);
}

bool TestQtColorButton::drop(const QMimeData &data)
{
    QDropEvent event(QPoint(9, 9), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    event.ignore();
    QCoreApplication::sendEvent(m_button.get(), &event);
    return event.isAccepted();
}

void TestQtColorButton::freshButton_hasNoColourAndIsCheckeredWithAlpha()
{
    QVERIFY(!m_button->color().isValid());
    QVERIFY(m_button->isBackgroundCheckered());
    QVERIFY(m_button->isAlphaAllowed());
    QVERIFY(m_button->acceptDrops());
    QCOMPARE(m_button->sizePolicy(), QSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred));
    QCOMPARE(m_button->metaObject()->className(), "QtColorButton"); // the style sheet's selector
    m_button->setAlphaAllowed(false);
    QVERIFY(!m_button->isAlphaAllowed());
}

void TestQtColorButton::setters_emitNothingAndRepaintOnlyAChange()
{
    m_button->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_button.get()));
    QCoreApplication::processEvents();
    PaintCounter paints(m_button.get());
    const std::function<void()> changes[] = {
        [this] { m_button->setColor(Qt::red); },
        [this] { m_button->setBackgroundCheckered(false); },
    };
    for (const auto &change : changes) {
        paints.count = 0;
        change();
        QTRY_COMPARE(paints.count, 1);
        change();
        QCoreApplication::processEvents();
        QCOMPARE(paints.count, 1);
    }
    QCOMPARE(m_button->color(), QColor(Qt::red));
    QVERIFY(!m_button->isBackgroundCheckered());
    QCOMPARE(m_changes->count(), 0);
}

void TestQtColorButton::click_asksForAColourWithAlphaOrWithout_data()
{
    addRows<bool>("alphaAllowed", {{"with alpha", true}, {"without alpha", false}});
}

void TestQtColorButton::click_asksForAColourWithAlphaOrWithout()
{
    QFETCH(const bool, alphaAllowed);
    m_button->setColor(QColor(10, 20, 30));
    m_button->setAlphaAllowed(alphaAllowed);
    m_button->show();
    bool wasAsked = false;
    QTimer::singleShot(0, this, [&] {
        auto *dialog = qobject_cast<QColorDialog *>(QApplication::activeModalWidget());
        QVERIFY(dialog);
        wasAsked = true;
        QCOMPARE(dialog->testOption(QColorDialog::ShowAlphaChannel), alphaAllowed);
        QCOMPARE(dialog->parentWidget(), m_button.get());
        QCOMPARE(dialog->currentColor(), QColor(10, 20, 30));
        dialog->setCurrentColor(translucent);
        dialog->accept();
    });
    m_button->click();

    QVERIFY(wasAsked);
    const QColor expected = alphaAllowed ? translucent : QColor(200, 100, 40);
    QCOMPARE(m_button->color(), expected);
    QCOMPARE(m_changes->count(), 1);
    QCOMPARE(m_changes->at(0).at(0).value<QColor>(), expected);
}

void TestQtColorButton::cancellingTheDialogOrChoosingTheSameColour_emitsNothing_data()
{
    const Table<bool, QColor> row("alphaAllowed", "answer");
    for (const bool alphaAllowed : {true, false}) {
        const QByteArray suffix = alphaAllowed ? ", with alpha" : ", without alpha";
        row("cancelled" + suffix, alphaAllowed, QColor());
        row("the same" + suffix, alphaAllowed, Qt::green);
        row("the same, in other words" + suffix, alphaAllowed, QColor::fromHsv(120, 255, 255));
    }
}

void TestQtColorButton::cancellingTheDialogOrChoosingTheSameColour_emitsNothing()
{
    QFETCH(const bool, alphaAllowed);
    QFETCH(const QColor, answer);
    m_button->setColor(Qt::green);
    m_button->setAlphaAllowed(alphaAllowed);
    ColorDialog::setAnswer([&answer](const QColor &) { return answer; });
    m_button->click();
    QCOMPARE(m_button->color(), QColor(Qt::green));
    QCOMPARE(m_changes->count(), 0);
}

void TestQtColorButton::moveOfExactlyTheStartDragDistance_doesNotStartADrag_data()
{
    const int distance = QApplication::startDragDistance();
    const Table<QPoint, bool> row("move", "starts");
    row("exactly, along one axis", {distance, 0}, false);
    row("exactly, along both axes", {-3, distance - 3}, false);
    row("one pixel more", {0, -distance - 1}, true);
    row("one pixel more, along both axes", {-3, distance - 2}, true);
}

void TestQtColorButton::moveOfExactlyTheStartDragDistance_doesNotStartADrag()
{
    QFETCH(const QPoint, move);
    QFETCH(const bool, starts);
    dragTo(QPoint(20, 20) + move);
    QCOMPARE(startedDrag() != nullptr, starts);
    QCOMPARE(m_button->isDown(), !starts);
    QCOMPARE(m_changes->count(), 0);
}

void TestQtColorButton::moveWithAnotherButton_doesNotStartADrag()
{
    dragTo(QPoint(90, 90), Qt::RightButton);
    QVERIFY(!startedDrag());
}

void TestQtColorButton::drag_carriesTheColour_data()
{
    addRows<QColor>("color", {{"opaque", Qt::blue}, {"translucent", translucent}});
}

void TestQtColorButton::drag_carriesTheColour()
{
    QFETCH(const QColor, color);
    m_button->setColor(color);
    dragTo(QPoint(90, 90));
    const QDrag *drag = startedDrag();
    QVERIFY(drag);
    QVERIFY(drag->mimeData()->hasColor());
    QCOMPARE(drag->mimeData()->colorData().value<QColor>(), color);
    QCOMPARE(drag->supportedActions(), Qt::CopyAction);
}

void TestQtColorButton::dragOverTheButton_showsTheDraggedColourAndLeavingRestores()
{
    m_button->setColor(Qt::green);
    QMimeData data;
    data.setColorData(QColor(Qt::blue));
    QVERIFY(enter(data));
    QCOMPARE(shownColor(), QColor(Qt::blue));
    QCOMPARE(m_button->color(), QColor(Qt::green));
    leave();
    QCOMPARE(shownColor(), QColor(Qt::green));
    QCOMPARE(m_changes->count(), 0);
}

void TestQtColorButton::dragWithoutAColour_isRefused_data()
{
    addRows<const char *>(
        "type", {{"text", "text/plain"}, {"a colour that is none", "application/x-color"}});
}

void TestQtColorButton::dragWithoutAColour_isRefused()
{
    QFETCH(const QString, type);
    m_button->setColor(Qt::green);
    QMimeData data;
    data.setData(type, QByteArrayLiteral("no colour"));
    QVERIFY(!enter(data));
    QCOMPARE(shownColor(), QColor(Qt::green));
}

void TestQtColorButton::drop_takesTheColourAndEmits()
{
    m_button->setColor(Qt::green);
    QMimeData data;
    data.setColorData(translucent);
    enter(data);
    QVERIFY(drop(data));
    QCOMPARE(m_button->color(), translucent);
    QCOMPARE(m_changes->count(), 1);
    QCOMPARE(m_changes->at(0).at(0).value<QColor>(), translucent);
    m_button->setColor(Qt::red); // no longer that of the drag
    QCOMPARE(shownColor(), QColor(Qt::red));
}

void TestQtColorButton::droppingTheSameColour_emitsNothing()
{
    m_button->setColor(Qt::green);
    QMimeData data;
    data.setColorData(QColor(Qt::green));
    enter(data);
    QVERIFY(drop(data));
    QCOMPARE(m_button->color(), QColor(Qt::green));
    QCOMPARE(m_changes->count(), 0);
}

QTEST_MAIN(TestQtColorButton)
#include "tst_qtcolorbutton.moc"
