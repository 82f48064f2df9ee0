#include "shell/MessageBar.h"

#include "shell/ShellStyle.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

MessageBar::MessageBar(QWidget *parent) : QWidget(parent), m_text(new QLabel(this))
{
    setAttribute(Qt::WA_StyledBackground);
    setObjectName(QStringLiteral("m_messageBar"));
    setStyleSheet(ShellStyle::panelSheet() +
                  QStringLiteral("#m_messageBar{background:#4a3a14;border-bottom:1px solid %1;}")
                      .arg(ShellStyle::warning().name()));
    m_text->setObjectName(QStringLiteral("m_messageLab"));
    m_text->setWordWrap(true);
    m_text->setTextFormat(Qt::PlainText);
    m_text->setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto *close = new QPushButton(tr("DISMISS"), this);
    close->setObjectName(QStringLiteral("m_dismissBtn"));
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(12, 6, 12, 6);
    layout->addWidget(m_text, 1);
    layout->addWidget(close);
    connect(close, &QPushButton::clicked, this, &MessageBar::dismiss);
    hide();
}

void MessageBar::add(const QString &text)
{
    m_messages.removeAll(text); // what is said again is the news
    m_messages << text;
    m_text->setText(m_messages.join(QLatin1Char('\n')));
    show();
}

void MessageBar::dismiss()
{
    m_messages.clear();
    hide();
}
