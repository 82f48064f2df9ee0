#pragma once

#include <QObject>

#include <functional>
#include <map>

class QWidget;

/// Keys that do something in one widget while it has the focus. They come before shortcuts of the
/// window with the same key. Lives as long as the widget.
class WidgetKeys : public QObject
{
    Q_OBJECT

public:
    explicit WidgetKeys(QWidget *widget);

    /// `key` is a Qt::Key, with Qt::Modifiers added.
    void on(int key, std::function<void()> action) { m_actions[key] = std::move(action); }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QWidget *m_widget;
    std::map<int, std::function<void()>> m_actions;
};
