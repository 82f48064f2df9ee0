#include "shell/ExportDlg.h"

#include "host/ProfileExchange.h"
#include "interfaces/Modal.h"
#include "shell/ExchangeFolder.h"
#include "shell/ShellStyle.h"

#include <QBoxLayout>
#include <QFileInfo>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QSaveFile>
#include <QSignalBlocker>

ExportDlg::ExportDlg(ShellContext &context, QWidget *parent)
    : QDialog(parent), m_context(context), m_list(new QListWidget(this)),
      m_macros(new QLabel(this)), m_message(new QLabel(this)),
      m_exportBtn(new QPushButton(tr("EXPORT..."), this))
{
    setObjectName(QStringLiteral("m_exportDlg"));
    setWindowTitle(tr("Export profiles"));
    setStyleSheet(ShellStyle::panelSheet());
    resize(440, 520);
    m_list->setObjectName(QStringLiteral("m_exportList"));
    m_list->setAccessibleName(tr("Profiles to export"));
    m_list->setSpacing(2);
    m_macros->setTextFormat(Qt::PlainText);
    m_message->setTextFormat(Qt::PlainText);
    m_macros->setObjectName(QStringLiteral("m_exportMacros"));
    m_macros->setWordWrap(true);
    m_macros->setStyleSheet(QStringLiteral("color:%1;").arg(ShellStyle::dim().name()));
    m_message->setObjectName(QStringLiteral("m_exportMessage"));
    m_message->setWordWrap(true);
    m_message->setStyleSheet(QStringLiteral("color:%1;").arg(ShellStyle::warning().name()));
    m_message->hide();
    m_exportBtn->setObjectName(QStringLiteral("m_exportBtn"));
    auto *const all = new QPushButton(tr("ALL"), this);
    all->setObjectName(QStringLiteral("m_exportAllBtn"));
    auto *const none = new QPushButton(tr("NONE"), this);
    none->setObjectName(QStringLiteral("m_exportNoneBtn"));
    auto *const cancel = new QPushButton(tr("CANCEL"), this);
    cancel->setObjectName(QStringLiteral("m_exportCancelBtn"));
    auto *const choice = new QHBoxLayout;
    choice->addWidget(new QLabel(tr("Profiles to export, with their macros:"), this), 1);
    choice->addWidget(all);
    choice->addWidget(none);
    auto *const end = new QHBoxLayout;
    end->addStretch();
    end->addWidget(cancel);
    end->addWidget(m_exportBtn);
    auto *const layout = new QVBoxLayout(this);
    layout->addLayout(choice);
    layout->addWidget(m_list, 1);
    layout->addWidget(m_macros);
    layout->addWidget(m_message);
    layout->addLayout(end);
    for (QPushButton *const button : {all, none, cancel})
        button->setAutoDefault(false);
    m_exportBtn->setDefault(true);
    setTabOrder(all, none);
    setTabOrder(none, m_list);
    setTabOrder(m_list, cancel);
    setTabOrder(cancel, m_exportBtn);
    m_list->setFocus();

    fill();
    connect(m_list, &QListWidget::itemChanged, this, &ExportDlg::showState);
    connect(all, &QPushButton::clicked, this, [this] { checkAll(true); });
    connect(none, &QPushButton::clicked, this, [this] { checkAll(false); });
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(m_exportBtn, &QPushButton::clicked, this, &ExportDlg::chooseFile);
}

void ExportDlg::fill()
{
    const StoreState &state = m_context.store().state();
    for (const int profile : state.profileOrder(m_context.owner())) {
        auto *const item =
            new QListWidgetItem(state.profileName(m_context.owner(), profile), m_list);
        item->setData(Qt::UserRole, profile);
        item->setCheckState(profile == m_context.profile() ? Qt::Checked : Qt::Unchecked);
        if (profile == m_context.profile())
            m_list->setCurrentItem(item);
    }
    showState();
}

void ExportDlg::checkAll(bool checked)
{
    {
        const QSignalBlocker blocker(m_list);
        for (int i = 0; i < m_list->count(); ++i)
            m_list->item(i)->setCheckState(checked ? Qt::Checked : Qt::Unchecked);
    }
    showState();
}

std::vector<int> ExportDlg::profiles() const
{
    std::vector<int> profiles;
    for (int i = 0; i < m_list->count(); ++i) {
        if (m_list->item(i)->checkState() == Qt::Checked)
            profiles.push_back(m_list->item(i)->data(Qt::UserRole).toInt());
    }
    return profiles;
}

void ExportDlg::showState()
{
    const std::vector<int> chosen = profiles();
    m_exportBtn->setEnabled(!chosen.empty());
    const ExchangeContent content =
        ProfileExchange::take(m_context.store().state(), m_context.owner(), chosen);
    QStringList macros;
    for (const ExchangeContent::Macro &macro : content.macros)
        macros << macro.name;
    m_macros->setText(
        macros.isEmpty()
            ? tr("No macros go with them.")
            : tr("Macros that go with them: %1.").arg(macros.join(QStringLiteral(", "))));
}

/// A name for the file, from the profile's if there is only one.
QString ExportDlg::suggestedName() const
{
    const std::vector<int> chosen = profiles();
    QString name = chosen.size() == 1
                       ? m_context.store().state().profileName(m_context.owner(), chosen[0])
                       : tr("profiles");
    for (QChar &letter : name) {
        if (QStringLiteral("/\\:*?\"<>|").contains(letter))
            letter = QLatin1Char('-');
    }
    return name + QStringLiteral(".json");
}

void ExportDlg::chooseFile()
{
    const QString start = ExchangeFolder::of(m_context.store()) + QLatin1Char('/');
    QString file =
        Modal::saveFileName(this, windowTitle(), start + suggestedName(), tr("Profiles (*.json)"));
    if (file.isEmpty())
        return;
    // nobody was asked about a file of the longer name
    const QString withSuffix = file + QStringLiteral(".json");
    if (!file.endsWith(QLatin1String(".json"), Qt::CaseInsensitive) &&
        !QFileInfo::exists(withSuffix))
        file = withSuffix;
    if (!exportTo(file))
        return;
    ExchangeFolder::remember(m_context.store(), file);
    accept();
}

bool ExportDlg::exportTo(const QString &fileName)
{
    const std::vector<int> chosen = profiles();
    const QByteArray json = ProfileExchange::toJson(
        ProfileExchange::take(m_context.store().state(), m_context.owner(), chosen));
    QSaveFile file(fileName);
    const bool written = file.open(QIODevice::WriteOnly) && file.write(json) == json.size() &&
                         file.flush() && file.commit();
    const QString shortName = QFileInfo(fileName).fileName();
    if (!written) {
        m_message->setText(tr("%1 was not written: %2").arg(shortName, file.errorString()));
        m_message->show();
        return false;
    }
    emit m_context.status(
        chosen.size() == 1
            ? tr("One profile was exported to %1.").arg(shortName)
            : tr("%1 profiles were exported to %2.").arg(chosen.size()).arg(shortName));
    return true;
}
