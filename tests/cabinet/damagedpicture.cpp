#include "damagedpicture.h"

#include "picturefolder.h"

#include <QImageWriter>

namespace {

QImage noise(QImage::Format format)
{
    QImage image(37, 23, QImage::Format_ARGB32);
    std::mt19937 random;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            image.setPixel(x, y, QRgb(random()));
    }
    return image.convertToFormat(format);
}

QByteArray littleEndian(quint32 value)
{
    const QByteArray bytes = RandomBytes::bigEndian(value);
    return {std::string(bytes.crbegin(), bytes.crend()).data(), bytes.size()};
}

quint32 crc32(const QByteArray &bytes)
{
    quint32 crc = 0xffffffffU;
    for (const char byte : bytes) {
        crc ^= quint8(byte);
        for (int bit = 0; bit < 8; ++bit)
            crc = (crc >> 1) ^ (crc & 1U ? 0xedb88320U : 0U);
    }
    return ~crc;
}

QByteArray chunk(const QByteArray &name, const QByteArray &content)
{
    return RandomBytes::bigEndian(quint32(content.size())) + name + content
           + RandomBytes::bigEndian(crc32(name + content));
}

// As zlib has it.
QByteArray compressed(const QByteArray &bytes)
{
    return qCompress(bytes, 9).mid(4);
}

// Much of nothing in a small file.
const QByteArray &compressedZeros()
{
    static const QByteArray zeros = compressed(QByteArray(64 << 20, '\0'));
    return zeros;
}

// Frames of one pixel each.
QByteArray gif(int frames)
{
    return QByteArray::fromHex("47494638396101000100800000ff0000000000")
           + QByteArray::fromHex("2c00000000010001000002024401"
                                 "00")
                 .repeated(frames)
           + ';';
}

QByteArray svg(const QByteArray &width = "37", const QByteArray &height = "23")
{
    return R"(<svg xmlns="http://www.w3.org/2000/svg" width=")" + width + "\" height=\"" + height
           + R"("><g id="g"><rect width="9" height="9" fill="red"/></g><use href="#g"/></svg>)";
}

QByteArray gzipped(const QByteArray &bytes)
{
    const QByteArray zlib = compressed(bytes);
    return QByteArray::fromHex("1f8b0800000000000003") + zlib.mid(2, zlib.size() - 6)
           + littleEndian(crc32(bytes)) + littleEndian(quint32(bytes.size()));
}

} // namespace

DamagedPicture::DamagedPicture(quint32 seed)
    : RandomBytes(seed)
{
    m_pictures = {gif(1), gif(3), svg(), gzipped(svg())};
    const QList<QByteArray> formats = QImageWriter::supportedImageFormats();
    for (const QByteArray &format : formats) {
        for (const QImage::Format depth : {QImage::Format_Mono, QImage::Format_Indexed8,
                                           QImage::Format_RGB32, QImage::Format_ARGB32})
            m_pictures << PictureFolder::encoded(noise(depth), format.constData());
    }
}

const QByteArray &DamagedPicture::picture()
{
    return m_pictures.at(below(m_pictures.size()));
}

QByteArray DamagedPicture::next()
{
    switch (below(8)) {
    case 0:
        return withAnotherHeader();
    case 1:
        return withNumbers(picture());
    case 2:
        return huge();
    case 3:
        return damaged(huge());
    case 4:
        return picture().left(below(64)) + garbage(below(4000));
    default:
        return damaged(picture());
    }
}

QByteArray DamagedPicture::withAnotherHeader()
{
    const int size = 2 + below(60);
    return picture().left(size) + picture().mid(below(2) ? size : 0);
}

// Where any number may stand, those that no number should be.
QByteArray DamagedPicture::withNumbers(QByteArray content)
{
    for (int number = below(4); number >= 0; --number) {
        const QByteArray bytes = below(2) ? bigEndian(side()) : littleEndian(side());
        const int size = below(2) ? 4 : 2;
        content.replace(below(qMin(content.size(), 200)), size, bytes.right(size));
    }
    return content;
}

// Of a picture: around the powers of two, and whatever is special to somebody.
quint32 DamagedPicture::side()
{
    static const QList<quint32> special = {0,     1,          8192,        8193,       16384,
                                           16385, 0x7fffffff, 0x80000000U, 0xffffffff, 20000};
    if (below(3) == 0)
        return special.at(below(special.size()));
    return (1U << below(32)) + quint32(below(3) - 1);
}

QByteArray DamagedPicture::huge()
{
    switch (below(6)) {
    case 0:
        return hugePng();
    case 1:
        return hugeBmp();
    case 2:
        return hugeGif();
    case 3:
        return hugeJpeg();
    case 4:
        return hugeIcon();
    default:
        return hugeText();
    }
}

QByteArray DamagedPicture::hugePng()
{
    static const QList<QByteArray> kinds = {// bits of a channel, and the channels
                                            QByteArray("\1\0", 2),
                                            QByteArray("\10\0", 2),
                                            "\1\3",
                                            "\10\3",
                                            "\10\2",
                                            "\20\2",
                                            "\10\6",
                                            "\20\6"};
    const QByteArray rest = QByteArray(2, '\0') + char(below(2)); // interlaced or not
    QByteArray content = QByteArray::fromHex("89504e470d0a1a0a")
                         + chunk("IHDR", bigEndian(side()) + bigEndian(side())
                                             + kinds.at(below(kinds.size())) + rest)
                         + chunk("PLTE", garbage(12));
    if (below(8) == 0)
        content += chunk("zTXt", QByteArray("Comment\0\0", 9) + compressedZeros());
    const QByteArray pixels = below(4) ? compressed(garbage(below(2000))) : compressedZeros();
    return content + chunk("IDAT", pixels) + chunk("IEND", {});
}

QByteArray DamagedPicture::hugeBmp()
{
    QByteArray content = PictureFolder::encoded(
        noise(below(2) ? QImage::Format_Indexed8 : QImage::Format_RGB32), "BMP");
    content.replace(18, 8, littleEndian(side()) + littleEndian(side()));
    if (below(2))
        content[30] = char(below(5)); // compressed in some way
    return content;
}

QByteArray DamagedPicture::hugeGif()
{
    QByteArray content = gif(1 + below(3));
    for (const int place : {6, 24}) { // the screen, and the picture on it
        if (below(4))
            content.replace(place, 4, littleEndian(side()).left(2) + littleEndian(side()).left(2));
    }
    return content;
}

QByteArray DamagedPicture::hugeJpeg()
{
    QByteArray content = PictureFolder::encoded(noise(QImage::Format_RGB32), "JPG");
    const int frame = content.indexOf("\xff\xc0");
    content.replace(frame + 5, 4, bigEndian(side()).right(2) + bigEndian(side()).right(2));
    if (below(4) == 0)
        content[frame + 1] = '\xc2'; // progressive
    return content;
}

// The bitmap within says another size than the directory.
QByteArray DamagedPicture::hugeIcon()
{
    QByteArray content =
        PictureFolder::encoded(noise(QImage::Format_ARGB32), below(2) ? "ICO" : "CUR");
    constexpr int directory = 22;
    return content.replace(directory + 4, 8, littleEndian(side()) + littleEndian(side()));
}

QByteArray DamagedPicture::hugeText()
{
    const QByteArray width = QByteArray::number(side());
    const QByteArray height = QByteArray::number(side());
    switch (below(5)) {
    case 0:
        return 'P' + QByteArray::number(1 + below(6)) + ' ' + width + ' ' + height + " 255\n"
               + garbage(below(2000));
    case 1:
        return "/* XPM */\nstatic char *p[] = {\n\"" + width + ' ' + height
               + " 2 1\",\n\"a c #ff0000\",\n\"b c None\",\n\"" + QByteArray(below(2000), 'a')
               + "\"};\n";
    case 2:
        return "#define p_width " + width + "\n#define p_height " + height
               + "\nstatic char p_bits[] = {\n0x01, 0x02, 0x03};\n";
    case 3:
        return svg(width, height);
    default:
        return gzipped(svg(width, height));
    }
}
