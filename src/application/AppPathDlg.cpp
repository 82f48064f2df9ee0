#include "application/AppPathDlg.h"

#include "application/AppPicture.h"
#include "interfaces/CfgFile.h"
#include "interfaces/IVantrixProfileCfg.h"
#include "vocabulary/AppTables.h"
#include "vocabulary/Common.h"

#include "ui_AppPathDlg.h"

#include <QPointer>

namespace {

/// The picture of the function that launches the application; null for an unknown type.
QPixmap applicationPicture(int appType)
{
    const auto launch = AppLaunchFuncs().find(appType);
    return launch == AppLaunchFuncs().end() ? QPixmap()
                                            : QPixmap(appPicture(appType, launch->second));
}

QString storedPath(int appType)
{
    QString path;
    IVantrixProfileCfg::Instance()->getAppPath(appType, path);
    return path;
}

} // namespace

AppPathDlg::AppPathDlg(int appType, QWidget *parent)
    : OstraDlg(parent), m_ui(std::make_unique<Ui::AppPathDlg>()), m_appType(appType)
{
    m_ui->setupUi(this);
    m_ui->m_typeIcon->setPixmap(applicationPicture(appType));
    m_ui->m_typeDesc->setText(appTypeText(appType));
    connect(m_ui->m_path, &QLineEdit::textChanged, this,
            [this](const QString &path) { m_ui->m_path->setToolTip(Common::PlainTip(path)); });
    m_ui->m_path->setText(storedPath(appType));
    connect(m_ui->m_dir, &QToolButton::clicked, this, &AppPathDlg::slotPathChanged);
    connect(m_ui->m_close, &QToolButton::clicked, this, &AppPathDlg::accept);
    connect(m_ui->m_cancel, &QPushButton::clicked, this, &AppPathDlg::reject);
    connect(m_ui->m_apply, &QPushButton::clicked, this, &AppPathDlg::slotApply);
}

AppPathDlg::~AppPathDlg() = default;

void AppPathDlg::slotPathChanged()
{
    const QPointer<AppPathDlg> alive(this);
    const QString path = CfgFile::getOpenFileName(reinterpret_cast<HWND>(winId()), tr("Open File"),
                                                  QString(), L"execute(*.exe)");
    if (alive && !path.isEmpty())
        m_ui->m_path->setText(path);
}

void AppPathDlg::slotApply()
{
    const QString path = m_ui->m_path->text();
    if (path != storedPath(m_appType))
        IVantrixProfileCfg::Instance()->setAppPath(m_appType, path);
    accept();
}
