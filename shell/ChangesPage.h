#pragma once

#include "shell/ShellContext.h"

#include <QWidget>

class QLabel;
class QPushButton;
class QTreeWidget;
class QTreeWidgetItem;

/// What APPLY will change on the device, key by key, in words and in the colours of their kinds,
/// and what the device has. Single keys can be put back; Enter goes to a key.
class ChangesPage : public QWidget
{
    Q_OBJECT

public:
    explicit ChangesPage(ShellContext &context, QWidget *parent = nullptr);

protected:
    void showEvent(QShowEvent *event) override;

private:
    QTreeWidget *addTree(const char *name, const QStringList &columns);
    void scheduleRefresh();
    void refresh();
    void fillPending();
    void fillDevice();
    void putBack(const QList<QTreeWidgetItem *> &items);
    void putBackSelected();
    void putBackAll();
    void enableButtons();
    void onActivated(const QTreeWidgetItem *item);

    ShellContext &m_context;
    QLabel *m_summary;
    QWidget *m_changes;
    QTreeWidget *m_pending = nullptr;
    QTreeWidget *m_device = nullptr;
    QPushButton *m_putBack;
    QPushButton *m_putBackAll;
    QPushButton *m_apply;
    QLabel *m_deviceLab;
    bool m_isScheduled = false;
};
