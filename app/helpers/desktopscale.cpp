#include "desktopscale.h"

#include <QBoxLayout>
#include <QGridLayout>
#include <QGuiApplication>
#include <QMainWindow>
#include <QRegularExpression>
#include <QScreen>
#include <QtMath>

namespace DesktopScale {
namespace {

constexpr qreal unscaledDotsPerInch = 96;
constexpr qreal pointsPerInch = 72;

// 0 until it is asked for or used.
qreal &current()
{
    static qreal factor = 0;
    return factor;
}

qreal inSteps(qreal factor)
{
    constexpr int stepsPerUnit = 4;
    return qBound(1.0, qRound(factor * stepsPerUnit) / qreal(stepsPerUnit), 4.0);
}

// A corner's. Qt leaves a corner right-angled where two of them are longer than a side, of which
// each part has been rounded down.
int scaledRadius(int radius)
{
    const qreal exact = radius * factor();
    return qFloor(exact) < exact ? qFloor(exact - 0.5) : qFloor(exact);
}

QMargins scaledMargins(const QMargins &margins)
{
    return {scaled(margins.left()), scaled(margins.top()), scaled(margins.right()),
            scaled(margins.bottom())};
}

// A limit, unless there is none or a style sheet has set it, which is scaled already.
int scaledLimit(const QWidget &widget, int limit, const char *ofStyleSheet)
{
    return limit == QWIDGETSIZE_MAX || widget.property(ofStyleSheet).isValid() ? limit
                                                                               : scaled(limit);
}

// The upper limits first, or growing lower ones would push them.
void scaleLimits(QWidget *widget)
{
    const QSize least(scaledLimit(*widget, widget->minimumWidth(), "_q_stylesheet_minw"),
                      scaledLimit(*widget, widget->minimumHeight(), "_q_stylesheet_minh"));
    const QSize most(scaledLimit(*widget, widget->maximumWidth(), "_q_stylesheet_maxw"),
                     scaledLimit(*widget, widget->maximumHeight(), "_q_stylesheet_maxh"));
    widget->setMaximumSize(most);
    widget->setMinimumSize(least);
}

// A side, unless it is the least one that a style sheet allows.
int scaledSide(const QWidget &widget, int side, int least, const char *ofStyleSheet)
{
    return side == least && widget.property(ofStyleSheet).isValid() ? side : scaled(side);
}

QSize scaledSize(const QWidget &widget)
{
    return {scaledSide(widget, widget.width(), widget.minimumWidth(), "_q_stylesheet_minw"),
            scaledSide(widget, widget.height(), widget.minimumHeight(), "_q_stylesheet_minh")};
}

void scaleLayout(QLayout *layout)
{
    layout->setContentsMargins(scaledMargins(layout->contentsMargins()));
    if (auto *grid = qobject_cast<QGridLayout *>(layout)) {
        grid->setHorizontalSpacing(scaled(grid->horizontalSpacing()));
        grid->setVerticalSpacing(scaled(grid->verticalSpacing()));
    } else if (layout->spacing() > 0) {
        layout->setSpacing(scaled(layout->spacing()));
    }
    for (int i = 0; i < layout->count(); ++i) {
        QLayoutItem *item = layout->itemAt(i);
        if (QSpacerItem *space = item->spacerItem()) {
            const QSizePolicy policy = space->sizePolicy();
            space->changeSize(scaled(space->sizeHint().width()), scaled(space->sizeHint().height()),
                              policy.horizontalPolicy(), policy.verticalPolicy());
        } else if (item->layout()) {
            scaleLayout(item->layout());
        }
    }
    layout->invalidate();
}

void scaleTree(QWidget *widget)
{
    const QPoint corner(scaled(widget->x()), scaled(widget->y()));
    const QSize size = scaledSize(*widget);
    scaleLimits(widget);
    if (!widget->isWindow())
        widget->setGeometry({corner, size});
    else if (widget->testAttribute(Qt::WA_Resized))
        widget->resize(size);
    if (widget->layout() && !qobject_cast<QMainWindow *>(widget))
        scaleLayout(widget->layout());
    const auto children = widget->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
    for (QWidget *child : children) {
        if (!child->isWindow())
            scaleTree(child);
    }
}

} // namespace

void request(const QString &factor)
{
    const qreal asked = factor.toDouble();
    current() = asked > 0 && qIsFinite(asked) ? inSteps(asked) : 0;
}

qreal factor()
{
    if (current() <= 0)
        current() =
            inSteps(QGuiApplication::primaryScreen()->logicalDotsPerInch() / unscaledDotsPerInch);
    return current();
}

// So that what stands side by side or in a row goes on having its room.
int scaled(int length)
{
    return qFloor(length * factor());
}

QFont inPixels(QFont font)
{
    if (font.pointSizeF() > 0)
        font.setPixelSize(qRound(font.pointSizeF() * unscaledDotsPerInch / pointsPerInch));
    return font;
}

QFont font(QFont unscaled)
{
    if (factor() > 1 && unscaled.pointSizeF() > 0)
        unscaled.setPixelSize(qRound(inPixels(unscaled).pixelSize() * factor()));
    return unscaled;
}

QString styleSheet(const QString &text)
{
    if (factor() <= 1)
        return text;
    static const QRegularExpression length(QStringLiteral("(radius: *)?\\b(\\d+)px"));
    QString scaledText;
    int copied = 0;
    for (auto found = length.globalMatch(text); found.hasNext();) {
        const QRegularExpressionMatch match = found.next();
        const int pixels = match.captured(2).toInt();
        scaledText +=
            text.midRef(copied, match.capturedStart(2) - copied)
            + QString::number(match.captured(1).isEmpty() ? scaled(pixels) : scaledRadius(pixels))
            + QStringLiteral("px");
        copied = match.capturedEnd();
    }
    scaledText += text.midRef(copied);
    return scaledText.replace(QStringLiteral("/Resource/Image/"),
                              QStringLiteral("/Resource/Image4x/"));
}

void apply(QWidget *window)
{
    if (factor() > 1)
        scaleTree(window);
}

} // namespace DesktopScale
