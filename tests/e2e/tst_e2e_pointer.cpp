#include "endtoendtest.h"
#include "waiting.h"

#include <QTest>

#include <algorithm>
#include <memory>

#include <X11/extensions/Xfixes.h>

/// The mouse pointer as the X server shows it.
class tst_e2e_pointer : public EndToEndTest
{
    Q_OBJECT

private slots:
    void restingPointer_disappearsUntilItsNextMove();

private:
    bool isPointerSeen();
};

bool tst_e2e_pointer::isPointerSeen()
{
    const std::unique_ptr<XFixesCursorImage, decltype(&XFree)> image(
        XFixesGetCursorImage(desktop().connection().display()), &XFree);
    return std::any_of(image->pixels, image->pixels + image->width * image->height,
                       [](unsigned long pixel) { return pixel != 0; });
}

void tst_e2e_pointer::restingPointer_disappearsUntilItsNextMove()
{
    QVERIFY(startTool());
    const QPoint inside = tool().testWindow().geometry.center();
    desktop().mouse().move(inside);
    QVERIFY(isPointerSeen());
    QVERIFY(waitFor([this] { return !isPointerSeen(); }));

    desktop().mouse().move(inside + QPoint(1, 0));
    QVERIFY(waitFor([this] { return isPointerSeen(); }));
    desktop().mouse().move(tool().controlWindow().geometry.center());
    QVERIFY(isPointerSeen());
}

QTEST_GUILESS_MAIN(tst_e2e_pointer)
#include "tst_e2e_pointer.moc"
