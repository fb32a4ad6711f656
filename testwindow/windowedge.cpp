#include "windowedge.h"

namespace WindowEdge {
namespace {

// One axis of a window: the coordinates of its first and last pixel.
struct Span
{
    int first;
    int last;
    int minimum;
    int maximum;

    int size() const { return last - first + 1; }
};

bool mayMove(const Span &span, int sizeAfter)
{
    if (span.size() > span.minimum && span.size() < span.maximum)
        return true;
    return (span.size() == span.maximum && sizeAfter < span.size())
           || (span.size() == span.minimum && sizeAfter > span.size());
}

Span moved(Span span, bool firstMoves, bool lastMoves, int to)
{
    if (firstMoves && mayMove(span, span.last - to + 1))
        span.first = to;
    else if (!firstMoves && lastMoves && mayMove(span, to - span.first + 1))
        span.last = to;
    return span;
}

void cut(Span &span, int limit)
{
    if (limit <= span.last - span.first)
        span.last = span.first + limit;
}

} // namespace

int at(const QRect &frame, const QPoint &pointer, int margin)
{
    const auto near = [margin](int a, int b) { return qAbs(a - b) < margin; };
    int edges = None;
    if (near(pointer.y(), frame.top()))
        edges |= Top;
    else if (near(pointer.y(), frame.bottom()))
        edges |= Bottom;
    if (near(pointer.x(), frame.left()))
        edges |= Left;
    else if (near(pointer.x(), frame.right()))
        edges |= Right;
    return edges;
}

Qt::CursorShape cursor(int edges)
{
    switch (edges) {
    case Top | Left:
    case Bottom | Right:
        return Qt::SizeFDiagCursor;
    case Top | Right:
    case Bottom | Left:
        return Qt::SizeBDiagCursor;
    case Top:
    case Bottom:
        return Qt::SizeVerCursor;
    case Left:
    case Right:
        return Qt::SizeHorCursor;
    default:
        return Qt::ArrowCursor;
    }
}

QRect resized(const QRect &frame, int edges, const QPoint &pointer, const SizeRange &range,
              const QSize &limit)
{
    Span x{frame.left(), frame.right(), range.minimum.width(), range.maximum.width()};
    Span y{frame.top(), frame.bottom(), range.minimum.height(), range.maximum.height()};
    x = moved(x, edges & Left, edges & Right, pointer.x());
    y = moved(y, edges & Top, edges & Bottom, pointer.y());
    if (x.last < x.first || y.last < y.first)
        return frame;
    cut(x, limit.width());
    cut(y, limit.height());
    return {QPoint(x.first, y.first), QPoint(x.last, y.last)};
}

} // namespace WindowEdge
