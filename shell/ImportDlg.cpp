#include "shell/ImportDlg.h"

#include "interfaces/Modal.h"
#include "shell/ExchangeFolder.h"
#include "shell/ShellStyle.h"
#include "vocabulary/Common.h"

#include <QBoxLayout>
#include <QComboBox>
#include <QFile>
#include <QFileInfo>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTreeWidget>

#include <algorithm>

namespace {

enum Column { NameColumn, KeysColumn, TargetColumn };

int assignedKeys(const ProfileKeys &keys)
{
    int count = 0;
    for (int i = 0; i < KeyCount; ++i)
        count += keys[std::size_t(i)] != freshKey(i);
    return count;
}

} // namespace

ImportDlg::ImportDlg(ShellContext &context, QWidget *parent)
    : QDialog(parent), m_context(context), m_file(new QLabel(tr("No file is open."), this)),
      m_list(new QTreeWidget(this)), m_macros(new QLabel(this)), m_message(new QLabel(this)),
      m_importBtn(new QPushButton(tr("IMPORT"), this)),
      m_cancelBtn(new QPushButton(tr("CANCEL"), this))
{
    setObjectName(QStringLiteral("m_importDlg"));
    setWindowTitle(tr("Import profiles"));
    setStyleSheet(ShellStyle::panelSheet());
    resize(560, 520);
    m_file->setObjectName(QStringLiteral("m_importFile"));
    m_file->setTextFormat(Qt::PlainText);
    auto *const open = new QPushButton(tr("OPEN..."), this);
    open->setObjectName(QStringLiteral("m_importOpenBtn"));
    m_list->setObjectName(QStringLiteral("m_importList"));
    m_list->setAccessibleName(tr("Profiles of the file"));
    m_list->setHeaderLabels({tr("PROFILE OF THE FILE"), tr("KEYS"), tr("IN PLACE OF")});
    m_list->setRootIsDecorated(false);
    m_list->header()->setStretchLastSection(true);
    m_list->header()->setSectionResizeMode(NameColumn, QHeaderView::Stretch);
    m_list->header()->setSectionResizeMode(KeysColumn, QHeaderView::ResizeToContents);
    m_macros->setObjectName(QStringLiteral("m_importMacros"));
    m_macros->setWordWrap(true);
    m_macros->setStyleSheet(QStringLiteral("color:%1;").arg(ShellStyle::dim().name()));
    m_message->setObjectName(QStringLiteral("m_importMessage"));
    m_message->setWordWrap(true);
    m_message->setTextFormat(Qt::PlainText);
    m_macros->setTextFormat(Qt::PlainText);
    m_message->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_message->hide();
    m_importBtn->setObjectName(QStringLiteral("m_importBtn"));
    m_cancelBtn->setObjectName(QStringLiteral("m_importCancelBtn"));
    auto *const head = new QHBoxLayout;
    head->addWidget(m_file, 1);
    head->addWidget(open);
    auto *const end = new QHBoxLayout;
    end->addStretch();
    end->addWidget(m_cancelBtn);
    end->addWidget(m_importBtn);
    auto *const layout = new QVBoxLayout(this);
    layout->addLayout(head);
    layout->addWidget(m_list, 1);
    layout->addWidget(m_macros);
    layout->addWidget(m_message);
    layout->addLayout(end);
    m_importBtn->setDefault(true);
    open->setFocus(); // nothing else can be done first
    setTabOrder(open, m_list);
    m_cancelBtn->setAutoDefault(false);

    connect(open, &QPushButton::clicked, this, &ImportDlg::chooseFile);
    connect(m_list, &QTreeWidget::itemChanged, this, &ImportDlg::showState);
    connect(m_cancelBtn, &QPushButton::clicked, this, &QDialog::reject);
    connect(m_importBtn, &QPushButton::clicked, this, &ImportDlg::importChecked);
    showState();
}

void ImportDlg::chooseFile()
{
    const QString file =
        Modal::openFileName(this, windowTitle(), ExchangeFolder::of(m_context.store()),
                            tr("Profiles (*.json);;All files (*)"));
    if (file.isEmpty())
        return;
    ExchangeFolder::remember(m_context.store(), file);
    openFile(file);
}

bool ImportDlg::openFile(const QString &fileName)
{
    const QString shortName = QFileInfo(fileName).fileName();
    m_content = ExchangeContent();
    m_isRead = false;
    m_file->setText(shortName);
    m_file->setToolTip(Common::PlainTip(fileName));
    QString error;
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly)) {
        error = tr("%1 cannot be read: %2").arg(shortName, file.errorString());
    } else if (const auto content = ProfileExchange::fromJson(file.readAll(), shortName, &error)) {
        m_content = *content;
        m_isRead = true;
    }
    fill();
    m_list->setEnabled(true);
    m_cancelBtn->setText(tr("CANCEL"));
    if (m_isRead)
        m_list->setFocus(); // Enter imports from there
    say(error, true);
    showState();
    return m_isRead;
}

void ImportDlg::fill()
{
    const QSignalBlocker blocker(m_list);
    m_list->clear();
    const StoreState &state = m_context.store().state();
    // a single profile goes in place of the one that is shown, several where they came from
    const bool isOne = m_content.profiles.size() == 1;
    QWidget *last = m_list;
    for (const ExchangeContent::Profile &profile : m_content.profiles) {
        auto *const item = new QTreeWidgetItem(m_list);
        const QString number = tr("PROFILE %1").arg(profile.profile + 1);
        item->setText(NameColumn, profile.name.isEmpty()
                                      ? number
                                      : QStringLiteral("%1 (%2)").arg(profile.name, number));
        item->setText(KeysColumn, QString::number(assignedKeys(profile.keys)));
        item->setCheckState(NameColumn, Qt::Checked);
        auto *const target = new QComboBox(m_list);
        for (const int own : state.profileOrder(m_context.owner()))
            target->addItem(state.profileName(m_context.owner(), own), own);
        target->setAccessibleName(tr("In place of"));
        target->setCurrentIndex(target->findData(isOne ? m_context.profile() : profile.profile));
        connect(target, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
                &ImportDlg::showState);
        m_list->setItemWidget(item, TargetColumn, target);
        setTabOrder(last, target);
        last = target;
    }
    setTabOrder(last, m_cancelBtn);
    setTabOrder(m_cancelBtn, m_importBtn);
}

void ImportDlg::say(const QString &text, bool isTrouble)
{
    const QColor colour = isTrouble ? ShellStyle::warning() : ShellStyle::text();
    m_message->setStyleSheet(QStringLiteral("color:%1;").arg(colour.name()));
    m_message->setText(text);
    m_message->setVisible(!text.isEmpty());
}

int ImportDlg::targetOf(int row) const
{
    const auto *const target = qobject_cast<const QComboBox *>(
        m_list->itemWidget(m_list->topLevelItem(row), TargetColumn));
    return target ? target->currentData().toInt() : 0;
}

/// What the file holds, as far as it is checked, with the numbers it is imported under.
ExchangeContent ImportDlg::checkedContent() const
{
    ExchangeContent content;
    bool isWhole = true;
    std::set<QString> used;
    for (int i = 0; i < int(m_content.profiles.size()); ++i) {
        ExchangeContent::Profile profile = m_content.profiles[std::size_t(i)];
        isWhole = isWhole && profile.profile == targetOf(i);
        if (m_list->topLevelItem(i)->checkState(NameColumn) != Qt::Checked) {
            isWhole = false;
            continue;
        }
        profile.profile = targetOf(i);
        for (const KeyContent &key : profile.keys) {
            if (key.macroName)
                used.insert(*key.macroName);
        }
        content.profiles.push_back(profile);
    }
    if (isWhole)
        return m_content;
    for (const ExchangeContent::Macro &macro : m_content.macros) {
        if (used.count(macro.name) > 0)
            content.macros.push_back(macro);
    }
    return content;
}

/// Says which profile two of the file would take the place of; empty if none.
QString ImportDlg::clash() const
{
    std::set<int> seen;
    for (const ExchangeContent::Profile &profile : checkedContent().profiles) {
        if (!seen.insert(profile.profile).second)
            return tr("Two profiles would take the place of %1.")
                .arg(m_context.store().state().profileName(m_context.owner(), profile.profile));
    }
    return {};
}

void ImportDlg::showState()
{
    const ExchangeContent content = checkedContent();
    QStringList macros;
    for (const ExchangeContent::Macro &macro : content.macros)
        macros << macro.name;
    m_macros->setText(
        macros.isEmpty()
            ? QString()
            : tr("Macros that come with them: %1.").arg(macros.join(QStringLiteral(", "))));
    const QString trouble = clash();
    if (m_isRead)
        say(trouble, true);
    const bool isEmpty = content.profiles.empty() && content.macros.empty();
    m_importBtn->setEnabled(m_isRead && trouble.isEmpty() && !isEmpty);
}

void ImportDlg::importChecked()
{
    if (!m_importBtn->isEnabled())
        return;
    const ExchangeContent content = checkedContent();
    const ExchangeReport done = ProfileExchange::put(content, m_context.store(), m_context.owner());
    report(int(content.profiles.size()), done);
}

void ImportDlg::report(int count, const ExchangeReport &report)
{
    const QString summary = count == 0   ? tr("The macros were imported.")
                            : count == 1 ? tr("One profile was imported.")
                                         : tr("%1 profiles were imported.").arg(count);
    QStringList lines{summary};
    for (const auto &[oldName, newName] : report.renamedMacros)
        lines << tr("The macro \"%1\" is named \"%2\" here, because there was another of its name.")
                     .arg(oldName, newName);
    for (const QString &application : report.missingApplications)
        lines << tr("%1 was not found on this computer; its functions do nothing until it is.")
                     .arg(application);
    emit m_context.status(summary);
    if (lines.size() == 1) {
        accept();
        return;
    }
    m_isRead = false; // what is said now stays
    m_list->setEnabled(false);
    m_importBtn->setEnabled(false);
    m_cancelBtn->setText(tr("CLOSE"));
    say(lines.join(QLatin1Char('\n')), false);
}
