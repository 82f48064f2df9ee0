#include "application/FuncLevWid.h"

#include "application/BranchTitle.h"
#include "application/HotKeyTree.h"
#include "application/HotKeysWid.h"
#include "ui_FuncLevUi.h"

namespace {

/// Leaves that are added in one go.
constexpr int KeysAtOnce = 24;

} // namespace

FuncLevWid::FuncLevWid(HotKeyTree &tree, const QString &strTitle, QWidget *parent)
    : QWidget(parent), m_ui(std::make_unique<Ui::FuncLevUi>()), m_tree(tree)
{
    m_ui->setupUi(this);
    setUpTitle(m_ui->m_title, m_ui->scrollArea, strTitle);
    m_ui->m_layout->setAlignment(Qt::AlignTop);
    connect(m_ui->m_title, &QPushButton::clicked, this, &FuncLevWid::slotTitleClicked);
}

FuncLevWid::~FuncLevWid() = default;

bool FuncLevWid::addSome(HotKeyMap &mHotKeys)
{
    if (mHotKeys.empty())
        return true;
    const auto group = mHotKeys.begin();
    if (!m_filling && m_tree.addTitle())
        m_filling = addGroup(group->first);
    if (!m_filling) {
        mHotKeys.clear();
        return true;
    }
    m_filling->addKeys(group->second, KeysAtOnce);
    if (group->second.empty()) {
        mHotKeys.erase(group);
        m_filling = nullptr;
    }
    return mHotKeys.empty();
}

HotKeysWid *FuncLevWid::addGroup(const QString &strTitle)
{
    auto *const group = new HotKeysWid(m_tree, strTitle, m_ui->scrollAreaWidgetContents);
    connect(this, &FuncLevWid::sigSearch, group, &HotKeysWid::slotSearch);
    connect(this, &FuncLevWid::sigVantrixKeySelected, group, &HotKeysWid::slotVantrixKeySelected);
    m_ui->m_layout->addWidget(group);
    return group;
}

void FuncLevWid::slotTitleClicked()
{
    toggleArea(m_ui->scrollArea);
}
