#include "application/ApplicationBtn.h"

#include "application/AppPathDlg.h"
#include "application/AppPicture.h"
#include "application/ApplicationWid.h"
#include "application/FuncBtn.h"
#include "interfaces/ButtonGroupEx.h"
#include "interfaces/Modal.h"
#include "toolkit/PanelStyle.h"
#include "vocabulary/AppTables.h"

#include "ui_ApplicationBtn.h"

#include <QPointer>
#include <QScrollBar>

namespace {

QString functionSheet()
{
    return QStringLiteral(
        "QPushButton{background:rgb(36,36,36);border:none;color:white;font-size:10px;"
        "min-height:30px;}:hover{background:rgba(255,255,255,50);}"
        ":checked{background:rgb(141,136,28)}"
        "QToolTip{ background:rgb(204,0,255);border:none;color:white;font-size:11px;"
        "opacity: 200; }");
}

QString folderSheet()
{
    return QStringLiteral("QPushButton{background:transparent;border:none;"
                          "image:url(:/VantrixMap/Application/dir.png);min-height:1px;}");
}

} // namespace

ApplicationBtn::ApplicationBtn(int appType, ApplicationWid *parent)
    : QWidget(parent), m_ui(std::make_unique<Ui::ApplicationBtn>()), m_appType(appType),
      m_group(new ButtonGroupEx(this)), m_folderBtn(new QPushButton(this))
{
    m_ui->setupUi(this);
    m_ui->m_funcList->verticalScrollBar()->setStyleSheet(scrollBarSheet());
    m_ui->m_typeBtn->setText(appTypeText(appType));
    connect(m_ui->m_typeBtn, &QPushButton::toggled, m_ui->m_funcList, &QWidget::setVisible);
    m_ui->m_typeBtn->setChecked(false);
    m_ui->m_funcList->setVisible(false);
    addFunctions();
    addFolderButton();
}

ApplicationBtn::~ApplicationBtn() = default;

QPushButton *ApplicationBtn::typeButton() const
{
    return m_ui->m_typeBtn;
}

void ApplicationBtn::addFunctions()
{
    const int count = AppIds().count(m_appType) ? AppFuncCount : 0;
    for (int id = 0; id < count; ++id) {
        auto *const button = new FuncBtn(m_ui->scrollAreaWidgetContents);
        button->setStyleSheet(functionSheet());
        button->setIcon(QIcon(appPicture(m_appType, id)));
        button->setText(appFunctionText(m_appType, id));
        button->setToolTip(appHintText(m_appType, id));
        m_ui->m_layout->addWidget(button);
        m_group->addButton(button, id);
    }
    connect(m_group, &ButtonGroupEx::sigButtonClicked, this, &ApplicationBtn::slotFuncBtnClicked);
}

void ApplicationBtn::addFolderButton()
{
    m_folderBtn->setObjectName(QStringLiteral("m_folderBtn"));
    m_folderBtn->setStyleSheet(folderSheet());
    m_folderBtn->setAccessibleName(tr("Open File"));
    m_folderBtn->setToolTip(tr("Open File"));
    m_folderBtn->raise();
    connect(m_folderBtn, &QPushButton::clicked, this, &ApplicationBtn::slotChangeAppPath);
}

void ApplicationBtn::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    const QRect header = m_ui->m_typeBtn->geometry();
    const int w = header.width() / 12;
    const int h = header.height() / 2;
    m_folderBtn->setGeometry(header.x() + header.width() - 5 - w,
                             (header.y() + header.height() - h) / 2, w, h);
    showCheckedFunction();
}

void ApplicationBtn::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    showCheckedFunction();
}

void ApplicationBtn::showCheckedFunction()
{
    if (QAbstractButton *const button = m_group->checkedButton())
        m_ui->m_funcList->ensureWidgetVisible(button, 50, 50);
}

void ApplicationBtn::slotFuncBtnClicked(QAbstractButton *button)
{
    if (button->isChecked())
        emit sigApplicationAssigned(m_appType, m_group->id(button));
    else
        emit sigApplicationAssigned(-1, -1);
}

void ApplicationBtn::slotApplicationSelected(int iAppType, int iFuncId)
{
    const bool own = iAppType == m_appType;
    m_ui->m_typeBtn->setChecked(own);
    if (!own)
        return;
    m_group->setButtonChecked(iFuncId, true);
    showCheckedFunction();
}

void ApplicationBtn::slotVantrixKeySelected()
{
    m_ui->m_typeBtn->setChecked(false);
    m_group->setNoneButtonChecked();
}

void ApplicationBtn::slotApplicationAssigned(int iAppType)
{
    if (iAppType != m_appType)
        m_group->setNoneButtonChecked();
}

void ApplicationBtn::slotChangeAppPath()
{
    // The window may go while the dialog is open, and takes the dialog along.
    const QPointer<AppPathDlg> dialog = new AppPathDlg(m_appType, window());
    Modal::exec(dialog);
    delete dialog;
}
