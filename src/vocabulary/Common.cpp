#include "vocabulary/Common.h"

#include "core/records.h"
#include "platform/NativeKey.h"
#include "vocabulary/AppTables.h"
#include "vocabulary/KeyCodes.h"
#include "vocabulary/KeyImages.h"

#include <QAbstractButton>
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QLabel>
#include <QTextDocument>

#include <set>

namespace {

/// Each line by itself, so that a wrapped text loses no more than it must.
QString elided(const QWidget *widget, const QString &text)
{
    QStringList lines = text.split(QLatin1Char('\n'));
    for (QString &line : lines)
        line = widget->fontMetrics().elidedText(line, Qt::ElideRight, widget->width());
    return lines.join(QLatin1Char('\n'));
}

template <typename Widget>
void setElidedText(Widget *widget, const QString &text)
{
    widget->ensurePolished();
    const QString shown = elided(widget, text);
    widget->setText(shown);
    widget->setToolTip(shown == text ? QString() : Common::PlainTip(text));
}

/// Directions, whose pictures are arrows.
bool hasLargeIcon(ushort code)
{
    static const std::set<ushort> codes = {
        454,  455,  456,  457,  458, 459, 460, 461, 473, 729, 1241, 1497,
        1753, 2265, 2521, 2777, 731, 475, 474, 730, 733, 477, 476,  732,
    };
    return codes.count(code) != 0;
}

} // namespace

void Common::FilePath(const QString &in, QString &out)
{
    out = in.contains(QLatin1Char(' ')) ? QStringLiteral("\"%1\"").arg(in) : in;
}

void Common::FormatChar(QString &text)
{
    text.replace(QLatin1String("&&"), QLatin1String("&"));
    text.remove(QLatin1Char('\n'));
    text.remove(QLatin1Char(' '));
}

void Common::SpecialCharHandle(const QString &in, QString &out)
{
    out = in;
    out.replace(QLatin1Char('<'), QLatin1String("&lt;"));
    out.replace(QLatin1String("&&"), QLatin1String("&"));
}

void Common::TextWrap(QString &text)
{
    text.replace(QLatin1Char(' '), QLatin1Char('\n'));
}

QString Common::ButtonText(QString text)
{
    return text.replace(QLatin1Char('&'), QLatin1String("&&"));
}

QString Common::PlainTip(const QString &text)
{
    if (!Qt::mightBeRichText(text))
        return text;
    return QStringLiteral("<span>%1</span>").arg(text.toHtmlEscaped());
}

void Common::SetText(QAbstractButton *button, const QString &text)
{
    setElidedText(button, text);
}

void Common::SetText(QLabel *label, const QString &text)
{
    setElidedText(label, text);
}

void Common::Wait(int ms)
{
    QElapsedTimer timer;
    timer.start();
    while (timer.elapsed() < qint64(ms))
        QCoreApplication::processEvents();
}

ushort Common::ZKKeyCode(QKeyEvent *event)
{
    const NativeKey key = nativeKeyOf(event);
    if (key.virtualKey == 0)
        return 0;
    const ushort preceding = codeOfPrecedingScan(key.scanCode);
    return preceding != 0 ? preceding : codeOfVirtualKey(key.virtualKey);
}

QString Common::PhotoshopFuncName(int funcId)
{
    return appFunctionText(AppType::Photoshop, funcId);
}

QString Common::PremiereProFuncName(int funcId)
{
    return appFunctionText(AppType::PremierePro, funcId);
}

QString Common::IllustratorFuncName(int funcId)
{
    return appFunctionText(AppType::Illustrator, funcId);
}

void Common::keyColorStyle(int inputType, QString &style)
{
    const QColor color = inputColor(inputType);
    QColor background = color;
    background.setAlpha(50);
    style = QStringLiteral("QPushButton{background:") + background.name(QColor::HexArgb) +
            QStringLiteral(";border-radius:5px;border:2px solid ") + color.name(QColor::HexArgb) +
            QStringLiteral(";min-height:1px;}:hover{background:rgba(255,255,255,125)}"
                           ":checked{background:rgb(255,255,255,50);border:2px solid white;}");
}

void Common::keyIconStyle(int inputType, ushort code, const QString &imagePath, QString &style)
{
    keyColorStyle(inputType, style);
    QString icon = imagePath;
    if (inputType == InputType::Media)
        icon = imageOf(MediaImages(), code);
    else if (inputType == InputType::GameController)
        icon = imageOf(GameAssignImages(), code);
    const bool isLarge = inputType == InputType::GameController && hasLargeIcon(code);

    style += QStringLiteral("QPushButton{qproperty-icon:url(") + icon +
             QStringLiteral(");qproperty-iconSize:") + QString::number(isLarge ? 40 : 30) +
             QStringLiteral("px;text-align:top;font-size:11px;}");
}
