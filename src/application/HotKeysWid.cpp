#include "application/HotKeysWid.h"

#include "application/BranchTitle.h"
#include "application/HotKey.h"
#include "application/HotKeyTree.h"
#include "interfaces/ButtonGroupEx.h"
#include "ui_HotKeysUi.h"

#include <algorithm>

namespace {

constexpr int Rows = 6;
constexpr int RowHeight = 25;
constexpr int LeastWidth = 180;
constexpr int Spacing = 6;

int leafWidth(int columns, int width)
{
    if (columns < 2)
        return LeastWidth;
    return std::max(LeastWidth, int((width * 0.9 - (columns - 1) * Spacing) / columns));
}

/// The form has to stand before its members are used.
Ui::HotKeysUi *builtForm(QWidget *widget)
{
    auto *const form = new Ui::HotKeysUi;
    form->setupUi(widget);
    return form;
}

} // namespace

HotKeysWid::HotKeysWid(HotKeyTree &tree, const QString &strTitle, QWidget *parent)
    : QWidget(parent), m_ui(builtForm(this)), m_tree(tree),
      m_grid(m_ui->m_layout, Rows, m_ui->scrollAreaWidgetContents)
{
    setUpTitle(m_ui->m_title, m_ui->scrollArea, strTitle);
    m_ui->m_layout->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    connect(m_ui->m_title, &QPushButton::clicked, this, &HotKeysWid::slotTitleClicked);
}

HotKeysWid::~HotKeysWid() = default;

void HotKeysWid::addKeys(std::map<QString, QString> &mKeys, int most)
{
    for (; most > 0 && !mKeys.empty(); --most) {
        if (int(m_lsKeys.size()) >= HotKeyTree::MostKeysOfAGroup || !m_tree.addKey())
            return mKeys.clear();
        const auto entry = mKeys.begin();
        auto *const key = new HotKey(entry->first, entry->second, m_ui->scrollAreaWidgetContents);
        mKeys.erase(entry);
        // The number that the group would find by itself, by a look at all buttons there are.
        m_tree.group->addButton(key, -1 - m_tree.keys);
        m_lsKeys.push_back(key);
        m_grid.append(key);
    }
}

void HotKeysWid::slotVantrixKeySelected() {}

void HotKeysWid::slotSearch(QString strText)
{
    m_strSearch = strText;
    if (m_ui->scrollAreaWidgetContents->isVisible())
        return searchNow();
    if (m_searchWaits)
        return;
    m_searchWaits = true;
    m_tree.portions.add([this] {
        if (m_searchWaits)
            searchNow();
        return true;
    });
}

void HotKeysWid::searchNow()
{
    m_searchWaits = false;
    m_grid.search(m_strSearch);
}

void HotKeysWid::showEvent(QShowEvent *event)
{
    if (m_searchWaits && !m_ui->scrollArea->isHidden())
        searchNow();
    QWidget::showEvent(event);
}

void HotKeysWid::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    const int count = int(m_lsKeys.size());
    m_ui->scrollArea->setMinimumHeight(RowHeight * std::min(count, Rows));
    if (m_lsKeys.empty())
        return;
    const int width = leafWidth((count + Rows - 1) / Rows, this->width());
    m_lsKeys.front()->ensurePolished();
    const QFontMetrics metrics = m_lsKeys.front()->fontMetrics();
    for (HotKey *key : m_lsKeys)
        key->fit(width, metrics);
}

void HotKeysWid::slotTitleClicked()
{
    if (m_searchWaits)
        searchNow();
    toggleArea(m_ui->scrollArea);
}
