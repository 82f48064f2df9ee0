#pragma once

#include "shell/ShellContext.h"

#include <QWidget>

class QListWidget;
class QListWidgetItem;

/// All steps that can be taken back, the newest on top; those that were undone are dimmed.
/// Activating one (double click or Enter) goes to the store as it was right after it.
class HistoryPage : public QWidget
{
    Q_OBJECT

public:
    explicit HistoryPage(ShellContext &context, QWidget *parent = nullptr);

protected:
    void showEvent(QShowEvent *event) override;

private:
    void refresh();
    void onActivated(const QListWidgetItem *item);

    ShellContext &m_context;
    QListWidget *m_list;
};
