#include "application/AppHotKeysWid.h"

#include "application/BranchTitle.h"
#include "application/HotKeyTree.h"
#include "application/LevelWid.h"
#include "ui_AppHotKeysUi.h"

AppHotKeysWid::AppHotKeysWid(HotKeyTree &tree, const QString &strTitle, QWidget *parent)
    : QWidget(parent), m_ui(std::make_unique<Ui::AppHotKeysUi>()), m_tree(tree)
{
    m_ui->setupUi(this);
    setUpTitle(m_ui->m_title, m_ui->scrollArea, strTitle);
    m_ui->m_layout->setAlignment(Qt::AlignTop);
    connect(m_ui->m_title, &QPushButton::clicked, this, &AppHotKeysWid::slotTitleClicked);
}

AppHotKeysWid::~AppHotKeysWid() = default;

void AppHotKeysWid::addSecondLevels(const QStringList &lsSecondLev)
{
    m_tree.portions.add([this, rest = lsSecondLev]() mutable {
        if (!rest.isEmpty() && m_tree.addTitle())
            addSecondLevel(rest.takeFirst());
        else
            rest.clear();
        return rest.isEmpty();
    });
}

void AppHotKeysWid::addHotKeys(const QString &strSecondLev, const QString &strThirdLev,
                               HotKeyMap mHotKeys)
{
    m_tree.portions.add([=, file = std::move(mHotKeys)]() mutable {
        const auto level = m_mLevels.find(strSecondLev);
        if (level != m_mLevels.end())
            level->second->addFuncLevel(strThirdLev, std::move(file));
        return true;
    });
}

void AppHotKeysWid::addSecondLevel(const QString &strSecondLev)
{
    auto *const level = new LevelWid(m_tree, strSecondLev, m_ui->scrollAreaWidgetContents);
    connect(this, &AppHotKeysWid::sigSearch, level, &LevelWid::sigSearch);
    connect(this, &AppHotKeysWid::sigVantrixKeySelected, level, &LevelWid::sigVantrixKeySelected);
    m_mLevels[strSecondLev] = level;
    m_ui->m_layout->addWidget(level);
}

void AppHotKeysWid::slotTitleClicked()
{
    toggleArea(m_ui->scrollArea);
}
