#include "panels/CtrlPart.h"

#include "core/records.h"
#include "panels/PanelPicture.h"
#include "vocabulary/KeyCodes.h"
#include "vocabulary/KeyImages.h"

#include <algorithm>
#include <map>

namespace {

QString controllerColor()
{
    return inputColor(InputType::GameController).name(QColor::HexArgb);
}

QString imageSheet(ushort code)
{
    const QString picture = imageOf(GameHandleImages(), code);
    const QString image =
        picture.isEmpty() ? QString() : QStringLiteral("border-image:url(%1);").arg(picture);
    return QStringLiteral("QToolButton{background:transparent;border:none;") + image +
           QStringLiteral("}:hover{background:rgba(255,255,255,50);}:checked{background:") +
           controllerColor() + QLatin1Char('}');
}

/// Corner radius of a disc; a disc of no size has none.
int cornerOf(int radius)
{
    return std::max(0, radius - 1);
}

// clang-format off
const std::map<ushort, int> Rotations = {
    {458,   0}, {473,    0}, {731,   0}, {733,    0},
    {461,  90}, {730,   90}, {732,  90}, {2265,  90},
    {459, 180}, {475,  180}, {477, 180}, {729,  180},
    {460, 270}, {474,  270}, {476, 270}, {1241, 270},
    {454,  45}, {2521,  45},
    {455, 135}, {2777, 135},
    {456, 225}, {1753, 225},
    {457, 315}, {1497, 315},
};
// clang-format on

QIcon arrow(int rotation)
{
    const PanelPicture picture(QStringLiteral(":/VantrixMap/GameCtrl/direct"));
    return picture.source().transformed(QTransform().rotate(rotation), Qt::SmoothTransformation);
}

} // namespace

CtrlPart::CtrlPart(QWidget *parent) : QToolButton(parent)
{
    setCheckable(true);
}

void CtrlPart::place(const QRect &rect)
{
    const QString sheet = sheetAt(rect.size());
    if (sheet != styleSheet())
        setStyleSheet(sheet);
    setGeometry(rect);
    if (!text().isEmpty())
        setLetterHeight(rect.height() * 2 / 5);
}

void CtrlPart::setLetterHeight(int pixels)
{
    QFont letter = font();
    letter.setPixelSize(std::max(1, pixels));
    setFont(letter);
}

CtrlBtn::CtrlBtn(ushort code, QWidget *parent) : CtrlPart(parent), m_code(code) {}

QString CtrlBtn::sheetAt(const QSize &size) const
{
    const bool isLeft = m_code == 222 || m_code == 466;
    return imageSheet(m_code) + QStringLiteral("QToolButton{border-top-%1-radius:%2px;}")
                                    .arg(isLeft ? QLatin1String("left") : QLatin1String("right"))
                                    .arg(std::min(size.width(), size.height()) / 2);
}

GameBtn::GameBtn(ushort code, QWidget *parent, const QString &text) : CtrlPart(parent), m_code(code)
{
    setText(text);
    // The stick is dark in every palette.
    QPalette light = palette();
    light.setColor(QPalette::ButtonText, Qt::white);
    setPalette(light);
}

QString GameBtn::sheetAt(const QSize &size) const
{
    return imageSheet(m_code) +
           QStringLiteral("QToolButton{border-radius:%1px;}").arg(cornerOf(size.width() / 2));
}

DirectBtn::DirectBtn(ushort code, QWidget *parent)
    : CtrlPart(parent), m_rotation(Rotations.count(code) ? Rotations.at(code) : 0)
{
    setIcon(arrow(m_rotation));
}

QString DirectBtn::sheetAt(const QSize &size) const
{
    const int radius = size.width() / 2;
    const int iconSize = m_rotation % 90 == 0 ? radius : radius * 3 / 2;
    return QStringLiteral("QToolButton{background:white;border:none;border-radius:%1px;"
                          "qproperty-iconSize:%2px;}"
                          ":hover{border:2px solid rgba(255,255,255,50);}"
                          ":checked{border:2px solid %3}")
        .arg(cornerOf(radius))
        .arg(iconSize)
        .arg(controllerColor());
}

LogoBtn::LogoBtn(ushort code, QWidget *parent) : CtrlPart(parent), m_code(code) {}

QString LogoBtn::sheetAt(const QSize &) const
{
    return imageSheet(m_code);
}
