#pragma once

#include <QPainter>
#include <QPixmap>
#include <QSize>

#include <optional>

// A picture that is painted once and shown many times. It is painted again when its
// size or its key, whatever it depends on beside the size, is not that of the last time.
template<typename Key>
class PaintedPicture
{
public:
    // The picture at a size in pixels, valid until the next call; a null pixmap for an
    // empty size and when memory does not suffice. `paint` is called with a painter on
    // an opaque pixmap of the screen's format and has to cover all of it.
    template<typename Paint>
    const QPixmap &pixmap(const QSize &size, const Key &key, const Paint &paint)
    {
        if (m_key == key && m_pixmap.size() == size)
            return m_pixmap;
        m_key = key;
        m_pixmap = QPixmap(); // never two in memory at a time
        m_pixmap = QPixmap(size);
        if (!m_pixmap.isNull()) {
            QPainter painter(&m_pixmap);
            paint(painter);
        }
        return m_pixmap;
    }

private:
    QPixmap m_pixmap;
    std::optional<Key> m_key;
};
