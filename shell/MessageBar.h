#pragma once

#include <QStringList>
#include <QWidget>

class QLabel;

/// A bar across the window for what the user should know and may put aside. Messages that come
/// while it is open are added; nothing is said twice.
class MessageBar : public QWidget
{
    Q_OBJECT

public:
    explicit MessageBar(QWidget *parent = nullptr);

    void add(const QString &text);
    const QStringList &messages() const { return m_messages; }

private:
    void dismiss();

    QLabel *m_text;
    QStringList m_messages;
};
