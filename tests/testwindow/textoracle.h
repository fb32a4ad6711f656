#pragma once

#include <QList>
#include <QPainter>
#include <QPair>
#include <QWidget>

inline QPalette blackPalette()
{
    QPalette palette;
    palette.setBrush(QPalette::Window, Qt::black);
    return palette;
}

// The window's own texts have the size in pixels that they have at 96 dots per inch.
inline QFont overlayFont(QFont font)
{
    if (font.pointSizeF() > 0)
        font.setPixelSize(qRound(font.pointSizeF() / 0.75));
    return font;
}

inline QImage picture(QWidget &widget)
{
    return widget.grab().toImage().convertToFormat(QImage::Format_RGB32);
}

// What a black widget of this size looks like with white texts at these points.
class TextOracle : public QWidget
{
public:
    TextOracle(const QSize &size, const QFont &font)
    {
        setPalette(blackPalette());
        setFont(overlayFont(font));
        resize(size);
    }

    TextOracle &with(const QPoint &topLeft, const QString &text)
    {
        m_texts.append({topLeft, text});
        return *this;
    }

    QImage image() { return picture(*this); }

protected:
    void paintEvent(QPaintEvent * /*event*/) override
    {
        QPainter painter(this);
        painter.setPen(Qt::white);
        for (const auto &text : qAsConst(m_texts))
            painter.drawText(QRect(text.first, size()), 0, text.second);
    }

private:
    QList<QPair<QPoint, QString>> m_texts;
};
