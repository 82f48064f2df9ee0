#include "shell/ShellStyle.h"

#include "vocabulary/KeyCodes.h"

#include <QApplication>
#include <QFont>
#include <QProxyStyle>
#include <QStyleFactory>

namespace {

constexpr int OffscreenFontSize = 13;

/// Buttons of dialogs are words, like all others.
class Style : public QProxyStyle
{
public:
    Style() : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion"))) {}

    int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                  QStyleHintReturn *result) const override
    {
        return hint == SH_DialogButtonBox_ButtonsHaveIcons
                   ? 0
                   : QProxyStyle::styleHint(hint, option, widget, result);
    }
};

} // namespace

QColor ShellStyle::window()
{
    return QColor(0x1a, 0x1a, 0x1d);
}

QColor ShellStyle::panel()
{
    return QColor(0x23, 0x23, 0x27);
}

QColor ShellStyle::raised()
{
    return QColor(0x31, 0x31, 0x37);
}

QColor ShellStyle::line()
{
    return QColor(0x42, 0x42, 0x4a);
}

QColor ShellStyle::text()
{
    return QColor(0xf0, 0xee, 0xf2);
}

QColor ShellStyle::dim()
{
    return QColor(0xa9, 0xa6, 0xb0);
}

QColor ShellStyle::accent()
{
    return QColor(0x84, 0x31, 0x9b);
}

QColor ShellStyle::warning()
{
    return QColor(0xff, 0xb0, 0x3b);
}

void ShellStyle::install()
{
    QApplication::setStyle(new Style);
    if (QGuiApplication::platformName() == QLatin1String("offscreen")) {
        // It has no desktop to ask for a font.
        QFont font = QApplication::font();
        font.setPixelSize(OffscreenFontSize);
        QApplication::setFont(font);
    }
    QPalette palette;
    palette.setColor(QPalette::Window, window());
    palette.setColor(QPalette::WindowText, text());
    palette.setColor(QPalette::Base, panel());
    palette.setColor(QPalette::AlternateBase, raised());
    palette.setColor(QPalette::Text, text());
    palette.setColor(QPalette::PlaceholderText, dim());
    palette.setColor(QPalette::Button, raised());
    palette.setColor(QPalette::ButtonText, text());
    palette.setColor(QPalette::BrightText, Qt::white);
    palette.setColor(QPalette::ToolTipBase, raised());
    palette.setColor(QPalette::ToolTipText, text());
    palette.setColor(QPalette::Highlight, accent());
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Link, QColor(0xc9, 0x8b, 0xdb));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, QColor(0x76, 0x74, 0x7c));
    QApplication::setPalette(palette);
}

QString ShellStyle::panelSheet()
{
    // The sheet names pictures, and a static library's are not there by themselves.
    Q_INIT_RESOURCE(shell);
    return QStringLiteral(
               "QPushButton,QToolButton{background:%1;border:1px solid %2;border-radius:4px;"
               "padding:5px 10px;}"
               "QPushButton:hover,QToolButton:hover{border-color:%3;}"
               "QPushButton:pressed,QToolButton:pressed,QPushButton:checked{background:%3;}"
               "QPushButton:focus,QToolButton:focus{border-color:%4;}"
               "QPushButton:disabled,QToolButton:disabled{color:#76747c;background:transparent;}"
               "QToolButton{padding:5px 6px;}"
               "QToolButton::menu-indicator{image:none;}"
               "QListView,QTreeView,QTableView{background:%5;border:1px solid %2;"
               "border-radius:4px;outline:none;}"
               "QListView:focus,QTreeView:focus,QTableView:focus{border-color:%3;}"
               "QTableCornerButton::section{background:%1;border:none;}"
               "QHeaderView::section{background:%1;color:%6;border:none;padding:4px 6px;}"
               "QListView::indicator,QTreeView::indicator{width:14px;height:14px;"
               "background:%5;border:1px solid %6;border-radius:3px;}"
               "QListView::indicator:checked,QTreeView::indicator:checked"
               "{image:url(:/shell/check.png);}"
               "QLineEdit,QAbstractSpinBox,QComboBox{background:%5;border:1px solid "
               "%2;border-radius:4px;"
               "padding:4px 6px;}"
               "QLineEdit:focus,QAbstractSpinBox:focus,QComboBox:focus{border-color:%4;}"
               "QComboBox::drop-down{border:none;width:20px;}"
               "QAbstractSpinBox::up-button,QAbstractSpinBox::down-button{border:none;width:18px;}"
               "QComboBox::down-arrow,QAbstractSpinBox::down-arrow{image:url(:/shell/down.png);}"
               "QAbstractSpinBox::up-arrow{image:url(:/shell/up.png);}")
        .arg(raised().name(), line().name(), accent().name(), text().name(), panel().name(),
             dim().name());
}

QString ShellStyle::tabSheet()
{
    return QStringLiteral("QPushButton{background:transparent;border:none;color:%1;"
                          "padding:8px 8px;border-bottom:3px solid transparent;}"
                          "QPushButton:hover{color:%2;}"
                          "QPushButton:checked{color:%2;border-bottom-color:%3;}"
                          "QPushButton:focus{background:%4;}")
        .arg(dim().name(), text().name(), accent().lighter(130).name(), raised().name());
}

QString ShellStyle::primarySheet()
{
    return QStringLiteral("QPushButton:enabled{background:%1;border-color:%1;padding:5px 18px;}"
                          "QPushButton:enabled:hover{background:%2;}"
                          "QPushButton:enabled:focus{border-color:%3;}")
        .arg(accent().name(), accent().lighter(120).name(), text().name());
}

QString ShellStyle::headingSheet()
{
    return QStringLiteral("color:%1;font-weight:bold;").arg(dim().name());
}

QColor ShellStyle::kind(int inputType)
{
    const QColor color = inputColor(inputType);
    // Plain blue on a dark ground cannot be read.
    return color.lightness() < 110 || qGray(color.rgb()) < 70 ? color.lighter(150) : color;
}
