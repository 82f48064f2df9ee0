#include "application/LevelWid.h"

#include "application/BranchTitle.h"
#include "application/FuncLevWid.h"
#include "application/HotKeyTree.h"
#include "ui_LevelUi.h"

LevelWid::LevelWid(HotKeyTree &tree, const QString &strTitle, QWidget *parent)
    : QWidget(parent), m_ui(std::make_unique<Ui::LevelUi>()), m_tree(tree)
{
    m_ui->setupUi(this);
    setUpTitle(m_ui->m_title, m_ui->scrollArea, strTitle);
    m_ui->m_layout->setAlignment(Qt::AlignTop);
    connect(m_ui->m_title, &QPushButton::clicked, this, &LevelWid::slotTitleClicked);
}

LevelWid::~LevelWid() = default;

void LevelWid::addFuncLevel(const QString &strThirdLev, HotKeyMap mHotKeys)
{
    FuncLevWid *file = nullptr;
    m_tree.portions.add([this, strThirdLev, rest = std::move(mHotKeys), file]() mutable {
        if (!file && m_tree.addTitle())
            file = makeFuncLevel(strThirdLev);
        if (file && !file->addSome(rest))
            return false;
        // Not before it is filled: a layout that shows is a layout that runs.
        if (file)
            m_ui->m_layout->addWidget(file);
        return true;
    });
}

FuncLevWid *LevelWid::makeFuncLevel(const QString &strThirdLev)
{
    auto *const file = new FuncLevWid(m_tree, strThirdLev, m_ui->scrollAreaWidgetContents);
    connect(this, &LevelWid::sigSearch, file, &FuncLevWid::sigSearch);
    connect(this, &LevelWid::sigVantrixKeySelected, file, &FuncLevWid::sigVantrixKeySelected);
    return file;
}

void LevelWid::slotTitleClicked()
{
    toggleArea(m_ui->scrollArea);
}
