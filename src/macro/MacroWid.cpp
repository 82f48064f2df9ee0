#include "macro/MacroWid.h"

#include "core/records.h"
#include "interfaces/IVantrixProfileCfg.h"
#include "toolkit/NarrowText.h"
#include "toolkit/PanelStyle.h"
#include "vocabulary/Common.h"
#include "vocabulary/KeyCodes.h"

#include "ui_MacroUi.h"

#include <QListWidgetItem>
#include <QScrollBar>
#include <QSignalBlocker>

class MacroItem : public QListWidgetItem
{
public:
    MacroItem(const QString &number, const QString &name) : m_number(number), m_name(name)
    {
        setTextAlignment(Qt::AlignCenter);
        // As wide as the list, however long the name is.
        setSizeHint({0, RowHeight});
        updateText();
    }

    const QString &number() const { return m_number; }
    const QString &name() const { return m_name; }

    void setNumber(const QString &number)
    {
        m_number = number;
        updateText();
    }

    void setName(const QString &name)
    {
        m_name = name;
        updateText();
    }

private:
    static constexpr int RowHeight = 26;

    void updateText()
    {
        setText(m_number + QStringLiteral(" - ") + m_name);
        setToolTip(Common::PlainTip(text()));
    }

    QString m_number;
    QString m_name;
};

namespace {

QString numberOfRow(int row)
{
    return QLatin1Char('M') + QString::number(row + 1);
}

/// A selected macro has the colour that its keys have.
void colorSelection(QListWidget *list)
{
    QPalette palette = list->palette();
    palette.setColor(QPalette::Highlight, inputColor(InputType::Macro));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    list->setPalette(palette);
}

} // namespace

MacroWid::MacroWid(QWidget *parent) : QWidget(parent), m_ui(std::make_unique<Ui::MacroUi>())
{
    m_ui->setupUi(this);
    colorSelection(m_ui->m_macroList);
    m_ui->m_macroList->verticalScrollBar()->setStyleSheet(scrollBarSheet());
    m_ui->m_macroList->setAccessibleName(inputTypeText(InputType::Macro));
    keepTextNarrow(m_ui->m_createBtn, 8);
    connect(m_ui->m_createBtn, &QPushButton::clicked, this, &MacroWid::sigCreateMacro);
    connect(m_ui->m_macroList, &MacroList::sigSelectionSettled, this, &MacroWid::slotMacroChanged);
}

MacroWid::~MacroWid() = default;

MacroItem *MacroWid::item(int row) const
{
    return static_cast<MacroItem *>(m_ui->m_macroList->item(row));
}

int MacroWid::rowOfName(const std::string &name) const
{
    const QString wanted = QString::fromStdString(name);
    for (int row = 0; row < m_ui->m_macroList->count(); ++row) {
        if (item(row)->name() == wanted)
            return row;
    }
    return -1;
}

void MacroWid::announceKeys(const MacroItem *macro)
{
    std::map<uchar, uchar> assign;
    if (IVantrixProfileCfg::Instance()->getKeysOfMacro(m_iOwner, m_iProfile,
                                                       macro->name().toStdString(), &assign) &&
        !assign.empty())
        emit sigAssignedKey(macro->number(), macro->name(), assign);
}

void MacroWid::addMacro(std::string name)
{
    auto *const macro =
        new MacroItem(numberOfRow(m_ui->m_macroList->count()), QString::fromStdString(name));
    m_ui->m_macroList->addItem(macro);
    announceKeys(macro);
}

void MacroWid::delMacro(std::string name)
{
    const int removed = rowOfName(name);
    if (removed < 0)
        return;
    {
        // Taking out the selected macro changes the selection, which is nothing that the user did.
        const QSignalBlocker blocker(m_ui->m_macroList);
        delete m_ui->m_macroList->takeItem(removed);
    }
    for (int row = removed; row < m_ui->m_macroList->count(); ++row) {
        item(row)->setNumber(numberOfRow(row));
        announceKeys(item(row));
    }
}

void MacroWid::renameMacro(std::string oldName, std::string newName)
{
    const int row = rowOfName(oldName);
    if (row < 0)
        return;
    MacroItem *const macro = item(row);
    macro->setName(QString::fromStdString(newName));
    emit sigRenameMacro(macro->number(), macro->name());
}

void MacroWid::refreshAssigns()
{
    for (int row = 0; row < m_ui->m_macroList->count(); ++row)
        announceKeys(item(row));
}

void MacroWid::setOwnerProfile(int iOwner, int iProfile)
{
    m_iOwner = iOwner;
    m_iProfile = iProfile;
    const QSignalBlocker blocker(m_ui->m_macroList);
    m_ui->m_macroList->clear();
}

void MacroWid::clearSelection()
{
    const QSignalBlocker blocker(m_ui->m_macroList);
    m_ui->m_macroList->clearSelection();
}

void MacroWid::slotMacroSelected(QString strMacroNo)
{
    const QSignalBlocker blocker(m_ui->m_macroList);
    for (int row = 0; row < m_ui->m_macroList->count(); ++row)
        item(row)->setSelected(item(row)->number() == strMacroNo);
}

void MacroWid::slotMacroChanged()
{
    const auto *const current = static_cast<MacroItem *>(m_ui->m_macroList->currentItem());
    if (!current)
        return;
    const QList<QListWidgetItem *> selected = m_ui->m_macroList->selectedItems();
    {
        const QSignalBlocker blocker(m_ui->m_macroList);
        for (QListWidgetItem *const other : selected) {
            if (other != current)
                other->setSelected(false);
        }
    }
    emit sigMacroAssigned(current->isSelected(), current->number(), current->name(), -1);
}
