#include "gradualchangectrlwidget.h"

#include "ui_gradualchangectrlwidget.h"

#include "commonhelper.h"
#include "form.h"
#include "latin1.h"
#include "purecolor.h"
#include "settingsrules.h"
#include "swatchrow.h"

#include <QSettings>

#include <limits>

namespace {

constexpr QLatin1String levelKey = latin1("/setting/gradualChangeColorLevel");

struct Level
{
    qint16 count;
    const char *text;
};

constexpr Level levels[] = {
    {32, QT_TRANSLATE_NOOP("GradualChangeCtrlWidget", "32级")},
    {64, QT_TRANSLATE_NOOP("GradualChangeCtrlWidget", "64级")},
    {128, QT_TRANSLATE_NOOP("GradualChangeCtrlWidget", "128级")},
    {256, QT_TRANSLATE_NOOP("GradualChangeCtrlWidget", "256级")},
};

constexpr qint16 defaultLevel = 256;

// Also for a value that no level can have.
qint16 storedLevel(const QSettings &settings)
{
    const int level = SettingsRules::positiveInt(settings, levelKey, defaultLevel);
    return level <= std::numeric_limits<qint16>::max() ? qint16(level) : defaultLevel;
}

// Red when there is none, and an invalid colour when what is there names none.
QColor storedColor(const QSettings &settings)
{
    const QString name = settings.value(SharedKey::gradientColor).toString();
    return name.isEmpty() ? QColor(Qt::red) : QVariant(name).value<QColor>();
}

} // namespace

GradualChangeCtrlWidget::GradualChangeCtrlWidget(QWidget *drawWidget, QSettings *settings,
                                                 QWidget *parent)
    : QWidget(parent)
    , ui(makeForm<Ui::GradualChangeCtrlWidget>(this))
    , m_drawer(drawWidget)
    , m_settings(settings)
    , m_levelButtons{ui->buttonFirstLevel, ui->buttonSecondLevel, ui->buttonThirdLevel,
                     ui->buttonFirthLevel}
    , m_swatches(new SwatchRow(*ui, this))
    , m_saveSoon([this] { saveGradualChangeInfo(); }, this)
{
    for (QPushButton *button : m_levelButtons)
        button->setObjectName(QStringLiteral("levelPushBtn"));
    initConnection();
    initGradualChangeStatus();
}

GradualChangeCtrlWidget::~GradualChangeCtrlWidget()
{
    saveGradualChangeInfo();
}

void GradualChangeCtrlWidget::initConnection()
{
    for (int row = 0; row < levelCount; ++row)
        connect(m_levelButtons.at(std::size_t(row)), &QAbstractButton::clicked, this,
                [this, row] { selectLevel(row); });
    for (int index = 0; index < PureColor::count; ++index) {
        const QAbstractButton *const button = m_swatches->button(PureColor::at(index));
        // Specified: the old button that gets unchecked selects its colour, too, before the new
        // one does.
        connect(button, &QAbstractButton::toggled, this, [this, index] { selectColor(index); });
        // A click alone: a colour that another panel sends is not sent back to it.
        connect(button, &QAbstractButton::clicked, this,
                &GradualChangeCtrlWidget::slot_updateSelectedColor);
    }
}

// Restoring is not a change by the operator and writes nothing. Specified: the stored level stays
// out of the drawer until the next change of level or colour.
void GradualChangeCtrlWidget::initGradualChangeStatus()
{
    if (!m_settings)
        return;
    const auto hold = m_saveSoon.hold();
    const QColor color = storedColor(*m_settings);
    slot_changeSelectedGradualColor(color);
    m_colorIndex = CommonHelper::getColorIndex(color);
    m_level = storedLevel(*m_settings);
}

void GradualChangeCtrlWidget::saveGradualChangeInfo()
{
    if (!m_settings)
        return;
    SettingsRules::store(*m_settings, SharedKey::gradientColor, m_color);
    SettingsRules::store(*m_settings, levelKey, int(m_level));
}

void GradualChangeCtrlWidget::updateLanguage()
{
    m_swatches->retranslate();
    for (std::size_t row = 0; row < levelCount; ++row)
        CommonHelper::setQPushButtonText(m_levelButtons.at(row), tr(levels[row].text));
}

void GradualChangeCtrlWidget::selectLevel(int row)
{
    m_level = levels[row].count;
    emit signal_greyChanged(QString::fromUtf8(levels[row].text));
    apply();
    m_userChanged = true;
}

void GradualChangeCtrlWidget::selectColor(int index)
{
    m_color = PureColor::at(index);
    m_colorIndex = index;
    apply();
    if (!m_firstToggle)
        m_userChanged = true;
    m_firstToggle = false;
}

void GradualChangeCtrlWidget::apply()
{
    m_drawer.slot_gradualChangeColor(m_level, m_color);
    m_saveSoon.schedule();
}

void GradualChangeCtrlWidget::slot_changeSelectedGradualColor(const QColor &color)
{
    if (QAbstractButton *button = m_swatches->button(color))
        button->setChecked(true);
}

void GradualChangeCtrlWidget::slot_changeColorByPageDown()
{
    if (m_colorIndex < 0 || m_colorIndex >= PureColor::pageColorCount)
        return;
    slot_changeSelectedGradualColor(PureColor::at(m_colorIndex));
    // A button that was checked already has not said so, and the levels may be new.
    apply();
    slot_updateSelectedColor();
}
