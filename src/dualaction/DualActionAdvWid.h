#pragma once

#include "core/records.h"

#include <QWidget>

#include <memory>

class QButtonGroup;
namespace Ui {
class DualActionAdvUi;
}

/// The advanced form of a dual action: both actions by menu, the distance between them and the
/// three types, all on one page. Any change reports the whole record, of type 3; a `firstAction`
/// of 0 in it means no dual action.
class DualActionAdvWid : public QWidget
{
    Q_OBJECT

public:
    explicit DualActionAdvWid(QWidget *parent = nullptr);
    ~DualActionAdvWid() override;

public slots:
    /// The form has nothing to filter.
    void slotSearch(QString strText);
    /// Shows a key; one that is no dual action gives a fresh form that keeps its type.
    void slotVantrixKeySelected(vantrix_key_mapping key);

signals:
    void sigDualActionChanged(vantrix_key_mapping key);

private slots:
    void slotUpdateActions();

private:
    void buildTypes();
    vantrix_key_mapping record() const;

    const std::unique_ptr<Ui::DualActionAdvUi> m_ui;
    QButtonGroup *m_types;
    bool m_reporting = false;
};
