#include "hostilefile.h"

namespace {

// Every key of the program, and one that is none.
const char *const settingNames =
    "testWindowPointX testWindowPointY testWindowWidth testWindowHeight "
    "testWindowVisible testWindowBaseColor currentTabIndex testPurityGreyLevel "
    "testPuritySpeed testAutoScale AutoTest gradualChangeColor gradualChangeColorLevel "
    "gridNetChecked gridHorizontalChecked gridVerticalChecked gridSlantLeftChecked "
    "gridSlantRightChecked gridIsOldTest gridIsScroll gridIsMix gridGreyLevel gridSpeed "
    "isHorizontalPress isVerticalPress isSlantLeftPress isSlantRightPress "
    "pushButtonPauseChecked checkBoxH checkBoxV checkBoxSL checkBoxSR checkBoxRed "
    "checkBoxGreen checkBoxBlue checkBoxWhite checkBoxYellow checkBoxCyan checkBoxPurple "
    "tarnBoxHeight tarnBoxWidth tarnModelColumnCount tarnModelRowCount tarnLeftToRight "
    "tarnBackgroundSelect tarnFontColor tarnFontFontColor tarnBoxLineColor "
    "tarnModuleLineColor tarnModelColor tarnScanLineColor tarnBackgroundColor "
    "tarnBackColor advanceFontSize advanceFontShape advanceBeginRow advanceBeginColumn "
    "advanceModeWidth advanceScanWidth unknown";

template<typename Item, std::size_t count>
constexpr int length(const Item (&)[count])
{
    return int(count);
}

QByteArray escaped(const QByteArray &bytes)
{
    return bytes.isEmpty() ? bytes : "\\x" + bytes.toHex(' ').replace(" ", "\\x");
}

} // namespace

QByteArray HostileFile::next()
{
    switch (below(8)) {
    case 0:
        return garbage(below(4000));
    case 1:
    case 2:
        return damaged(section(), "\"\\[]=%;\n,@()");
    default:
        return section();
    }
}

// All keys, each with a value that may belong to another one, some twice, some not at all.
QByteArray HostileFile::section()
{
    QByteArray content("[setting]\n");
    const QList<QByteArray> names = QByteArray(settingNames).split(' ');
    for (const QByteArray &name : names) {
        const int copies = below(8) ? 1 : below(3);
        for (int copy = 0; copy < copies; ++copy)
            content += name + '=' + value() + '\n';
    }
    return content;
}

QByteArray HostileFile::value()
{
    switch (below(6)) {
    case 0:
    case 1:
        return numberText();
    case 2:
        return text();
    case 3:
        return typed();
    case 4:
        return serialized();
    default: // a value that it could really have
        if (below(3) == 0)
            return R"(@Variant(\0\0\0\x43\x1\xff\xff\x12\x12\"\"\0\0\0\0))";
        return below(2) ? QByteArray::number(below(300)) : QByteArray(below(2) ? "true" : "false");
    }
}

QByteArray HostileFile::numberText()
{
    static const QList<QByteArray> numbers =
        QByteArray("-1|0|2147483647|-2147483648|2147483648|-2147483649|99999999999999999999|"
                   "-99999999999999999999|65536|-65536|32768|0x7fffffff|1e300|-1e9999|nan|"
                   "inf|1.5|1,5|+7| 12 |007|--3|256|101")
            .split('|');
    if (below(2))
        return QByteArray::number(int(number()));
    return numbers.at(below(numbers.size()));
}

QByteArray HostileFile::text()
{
    constexpr const char *texts[] = {"",
                                     "\"\"",
                                     "\"",
                                     "a, b, c",
                                     ", , ,",
                                     R"("a", "b)",
                                     "\\x",
                                     "\\",
                                     "\\777777777",
                                     "red",
                                     "#12",
                                     "#1234567890abcdef",
                                     "transparent",
                                     "rgb(1,2,3)",
                                     "true, false",
                                     "TRUE",
                                     "yes",
                                     "%s%n%1%2",
                                     "<b>&amp;</b>",
                                     "}QWidget{background-color:",
                                     "\xe5\xae\xbd",
                                     "\xff\xfe",
                                     "../../../etc",
                                     "@"};
    if (below(40) == 0)
        return {below(100000), 'a'};
    return texts[below(length(texts))];
}

QByteArray HostileFile::typed()
{
    constexpr const char *types[] = {"ByteArray", "Rect",   "Size",    "Point",    "String",
                                     "Invalid",   "Font",   "Variant", "DateTime", "QColor",
                                     "Nothing",   "@Point", "rect",    ""};
    const QByteArray type(types[below(length(types))]);
    QByteArray content;
    for (int part = below(6); part > 0; --part)
        content += (below(4) ? numberText() : text()) + ' ';
    return '@' + type + '(' + content + (below(4) ? ")" : "");
}

// A value as it stands in a file when it has no notation of its own: the type's number and
// the bytes that the type is read from, with lengths that no memory is enough for.
QByteArray HostileFile::serialized()
{
    constexpr int colorType = 0x43;
    constexpr int typeCount = 90;
    QByteArray bytes = bigEndian(quint32(below(3) ? below(typeCount) : colorType));
    if (below(50) == 0)
        return disguised("@Variant(") + escaped(nestedLists(below(10000))) + ')';
    for (int part = below(5); part > 0; --part)
        bytes += below(2) ? bigEndian(number() >> below(32)) : garbage(below(20));
    return disguised(below(4) ? "@Variant(" : "@DateTime(") + escaped(bytes) + ')';
}

// The same to the reader, or nearly, with what it leaves out put in and letters by their numbers.
QByteArray HostileFile::disguised(QByteArray beginning)
{
    constexpr const char *leftOut[] = {"\"\"", "\"\" ",  "\xef\xbb\xbf", "\\\n",
                                       "\\q",  "\\\r\n", "\\x",          "1, "};
    for (int change = below(4); change > 0; --change) {
        const int place = below(beginning.size());
        if (below(2))
            beginning.insert(place, leftOut[below(length(leftOut))]);
        else
            beginning.replace(place, 1, escaped(beginning.mid(place, 1)));
    }
    return beginning;
}

// The beginning of a list in a list in a list.
QByteArray HostileFile::nestedLists(int depth)
{
    constexpr quint32 listType = 9;
    return (bigEndian(listType) + bigEndian(1)).repeated(depth);
}
