#include "qtcolorbutton.h"

#include "colordialog.h"

#include <QApplication>
#include <QDrag>
#include <QDragEnterEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>

namespace {

constexpr int swatchMargin = 5;
constexpr int swatchCheck = 10; // the side of a check, in pixels
constexpr int dragSide = 24;
constexpr int dragMargin = 1;
constexpr int dragCheck = 20;
constexpr int outerFrameAlpha = 51;
constexpr int innerFrameAlpha = 26;

// Two by two checks with the colour over them.
QPixmap checkerboard(int check, const QColor &even, const QColor &odd, const QColor &color)
{
    QPixmap tile(2 * check, 2 * check);
    QPainter painter(&tile);
    painter.fillRect(tile.rect(), odd);
    painter.fillRect(0, 0, check, check, even);
    painter.fillRect(check, check, check, check, even);
    painter.fillRect(tile.rect(), color);
    return tile;
}

// Puts the checkerboard's cross near the middle of an area of this size, after the margin.
QPoint brushOrigin(const QSize &size, int check, int margin)
{
    return {(size.width() % check + check) / 2 + margin,
            (size.height() % check + check) / 2 + margin};
}

bool isSame(const QColor &one, const QColor &other)
{
    return one.isValid() == other.isValid() && one.rgba() == other.rgba();
}

} // namespace

// What a colour button keeps to itself.
class QtColorButtonPrivate : public QObject
{
    Q_OBJECT

public:
    explicit QtColorButtonPrivate(QtColorButton *owner)
        : QObject(owner)
        , button(owner)
    { }

    QColor shownColor() const { return dragging ? dragColor : color; }
    QPixmap generatePixmap() const;
    void startDrag() const;
    void endHover();
    void changeColor(const QColor &chosen);

    QtColorButton *const button;
    QColor color;
    QColor dragColor; // of the drag over the button
    QPoint dragStart; // where the left button was pressed last
    bool dragging = false; // whether a colour is being dragged over the button
    bool backgroundCheckered = true;
    bool alphaAllowed = true;

public slots:
    void slotEditColor();
};

void QtColorButtonPrivate::slotEditColor()
{
    const QColor chosen =
        alphaAllowed ? ColorDialog::getRgba(color, button) : ColorDialog::getColor(color, button);
    if (chosen.isValid())
        changeColor(chosen.toRgb());
}

void QtColorButtonPrivate::changeColor(const QColor &chosen)
{
    if (isSame(chosen, color))
        return;
    button->setColor(chosen);
    emit button->colorChanged(chosen);
}

void QtColorButtonPrivate::endHover()
{
    dragging = false;
    button->update();
}

void QtColorButtonPrivate::startDrag() const
{
    auto *mimeData = new QMimeData;
    mimeData->setColorData(color);
    auto *drag = new QDrag(button); // deleted by the toolkit when it has ended
    drag->setMimeData(mimeData);
    drag->setPixmap(generatePixmap());
    drag->exec(Qt::CopyAction);
}

// What hangs on the pointer: the colour as it is, with the colour without its alpha inside of it.
QPixmap QtColorButtonPrivate::generatePixmap() const
{
    QPixmap pixmap(dragSide, dragSide);
    QPainter painter(&pixmap);
    painter.fillRect(pixmap.rect(), Qt::black); // what is left of it is the frame
    const QRect area = pixmap.rect().adjusted(dragMargin, dragMargin, -dragMargin, -dragMargin);
    painter.setBrushOrigin(brushOrigin(area.size(), dragCheck, dragMargin));
    painter.fillRect(area, checkerboard(dragCheck, Qt::lightGray, Qt::darkGray, shownColor()));
    painter.fillRect(area.width() / 4 + dragMargin, area.height() / 4 + dragMargin,
                     area.width() / 2, area.height() / 2, QColor(shownColor().rgb()));
    return pixmap;
}

QtColorButton::QtColorButton(QWidget *parent)
    : QToolButton(parent)
    , d(new QtColorButtonPrivate(this))
{
    setAcceptDrops(true);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    connect(this, &QToolButton::clicked, d, &QtColorButtonPrivate::slotEditColor);
}

QtColorButton::~QtColorButton() = default;

QColor QtColorButton::color() const
{
    return d->color;
}

void QtColorButton::setColor(const QColor &color)
{
    if (d->color == color)
        return;
    d->color = color;
    update();
}

bool QtColorButton::isBackgroundCheckered() const
{
    return d->backgroundCheckered;
}

void QtColorButton::setBackgroundCheckered(bool checkered)
{
    if (d->backgroundCheckered == checkered)
        return;
    d->backgroundCheckered = checkered;
    update();
}

bool QtColorButton::isAlphaAllowed() const
{
    return d->alphaAllowed;
}

void QtColorButton::setAlphaAllowed(bool allowed)
{
    d->alphaAllowed = allowed;
}

void QtColorButton::paintEvent(QPaintEvent *event)
{
    QToolButton::paintEvent(event);
    const QRect area = rect().adjusted(swatchMargin, swatchMargin, -swatchMargin, -swatchMargin);
    if (!isEnabled() || area.isEmpty())
        return;
    QBrush brush(d->shownColor());
    if (d->backgroundCheckered)
        brush = QBrush(checkerboard(swatchCheck, Qt::white, Qt::black, d->shownColor()));

    QPainter painter(this);
    painter.setBrushOrigin(brushOrigin(area.size(), swatchCheck, swatchMargin));
    painter.fillRect(area, brush);
    painter.setPen(QColor(0, 0, 0, innerFrameAlpha));
    painter.drawRect(area.adjusted(1, 1, -2, -2));
    painter.setPen(QColor(0, 0, 0, outerFrameAlpha));
    painter.drawRect(area.adjusted(0, 0, -1, -1));
}

void QtColorButton::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        d->dragStart = event->pos();
    QToolButton::mousePressEvent(event);
}

void QtColorButton::mouseMoveEvent(QMouseEvent *event)
{
    const int distance = (event->pos() - d->dragStart).manhattanLength();
    if (!event->buttons().testFlag(Qt::LeftButton)
        || distance <= QApplication::startDragDistance()) {
        QToolButton::mouseMoveEvent(event);
        return;
    }
    setDown(false);
    event->accept();
    d->startDrag();
}

void QtColorButton::dragEnterEvent(QDragEnterEvent *event)
{
    const QMimeData *offered = event->mimeData();
    const auto dragged = qvariant_cast<QColor>(offered->colorData());
    if (!offered->hasColor() || !dragged.isValid())
        return;
    event->accept();
    d->dragColor = dragged;
    d->dragging = true;
    update();
}

void QtColorButton::dragLeaveEvent(QDragLeaveEvent *event)
{
    event->accept();
    d->endHover();
}

void QtColorButton::dropEvent(QDropEvent *event)
{
    event->accept();
    d->endHover();
    d->changeColor(d->dragColor);
}

#include "qtcolorbutton.moc"
