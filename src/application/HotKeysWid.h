#pragma once

#include "toolkit/SearchGrid.h"

#include <QWidget>

#include <map>
#include <memory>
#include <vector>

class HotKey;
struct HotKeyTree;

namespace Ui {
class HotKeysUi;
}

/// A group of hot keys: a title over its leaves, which run down six rows and on to the next column.
/// Starts folded.
class HotKeysWid : public QWidget
{
    Q_OBJECT

public:
    /// `strTitle` is the group's title.
    HotKeysWid(HotKeyTree &tree, const QString &strTitle, QWidget *parent);
    ~HotKeysWid() override;

    /// Adds a leaf for each entry (name -> hot-key text), in order, and takes it out of `mKeys`; at
    /// most `most` of them.
    void addKeys(std::map<QString, QString> &mKeys, int most);

public slots:
    /// Leaves keep their check marks: the page does not show which hot key a key holds.
    void slotVantrixKeySelected();
    /// Leaves exactly those leaves visible whose shown text starts with `strText`, ignoring case. A
    /// group in sight does so at once, another one when the portions come to it, or when it comes
    /// into sight.
    void slotSearch(QString strText);

protected:
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;

private slots:
    void slotTitleClicked();

private:
    void searchNow();

    std::unique_ptr<Ui::HotKeysUi> m_ui;
    HotKeyTree &m_tree;
    std::vector<HotKey *> m_lsKeys;
    SearchGrid m_grid;
    QString m_strSearch;
    bool m_searchWaits = false;
};
