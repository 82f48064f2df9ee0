#include "macro/AssignKey.h"

AssignKey::AssignKey(QString text, QWidget *parent)
    : QPushButton(text.replace(QLatin1Char('\n'), QLatin1Char(' ')), parent)
{
    setCheckable(true);
    setUp(QStringLiteral("font-size:11px;"), QStringLiteral(":checked"));
}

AssignKey::AssignKey(QWidget *parent) : QPushButton(parent)
{
    setUp(QStringLiteral("text-align:left;font-size:13px;"), QStringLiteral(":pressed"));
}

QSize AssignKey::sizeHint() const
{
    constexpr int Air = 12;
    return QPushButton::sizeHint() + QSize(Air, 0);
}

void AssignKey::setUp(const QString &ofKind, const QString &stateRule)
{
    // Enter in a dialog's search field clicks the first button that would be a default.
    setAutoDefault(false);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    setStyleSheet(QStringLiteral("QPushButton{ background:transparent;border:none;min-height:30px;"
                                 "min-width:80px;") +
                  ofKind + QStringLiteral("}:hover{background:rgba(255,255,255,125);}") +
                  stateRule + QStringLiteral("{background:rgb(132,50,155);}"));
}
