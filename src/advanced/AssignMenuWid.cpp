#include "advanced/AssignMenuWid.h"

#include "advanced/ReassignDlg.h"
#include "interfaces/IEnvironment.h"
#include "toolkit/NarrowText.h"
#include "toolkit/ReadableOn.h"
#include "ui_AssignMenuUi.h"
#include "vocabulary/Common.h"
#include "vocabulary/KeyCodes.h"
#include "vocabulary/KeyImages.h"
#include "vocabulary/KeyNames.h"

#include <QEvent>

namespace {

/// Pixels beside the text of a button and of the key's name.
constexpr int TextMargins = 4;
/// Property of a label: its text before it was cut to the label's width.
constexpr char wholeTextProperty[] = "wholeText";

void setSheet(QWidget *widget, const QString &sheet)
{
    if (widget->styleSheet() != sheet)
        widget->setStyleSheet(sheet);
}

QString colorName(int iState)
{
    return inputColor(iState).name(QColor::HexArgb);
}

QString imageOfState(int iState, ushort code)
{
    if (iState == InputType::Media)
        return imageOf(MediaImages(), code);
    if (iState == InputType::GameController)
        return imageOf(GameAssignImages(), code);
    return QString();
}

void setWholeText(QLabel *label, const QString &text)
{
    label->setProperty(wholeTextProperty, text);
    Common::SetText(label, text);
}

void colorLabel(QLabel *label, int iState, const QString &strImage)
{
    // An address with nothing in it makes Qt complain.
    const QString image = strImage.isEmpty()
                              ? QString()
                              : QStringLiteral("image:url(") + strImage + QStringLiteral(");");
    setSheet(label, QStringLiteral("border:none;background:") + colorName(iState) +
                        QStringLiteral(";") + image + QStringLiteral("min-height:18px;"));
    QPalette palette = label->palette();
    palette.setColor(QPalette::WindowText, readableOn(inputColor(iState)));
    label->setPalette(palette);
}

/// A record of type 3 without a first action is how a dual action is taken off a key.
vantrix_key_mapping assignable(const vantrix_key_mapping &key)
{
    return key.type == KeyType::DualAction && !isDualAction(key) ? clearedKey() : key;
}

} // namespace

AssignMenuWid::AssignMenuWid(QWidget *parent)
    : QWidget(parent), m_ui(new Ui::AssignMenuUi),
      m_reassignDlg(new ReassignDlg(IEnvironment::Instance()->getMainWidget()))
{
    m_ui->setupUi(this);
    m_reassignDlg->setObjectName(QStringLiteral("m_reassignDlg"));
    m_ui->m_dualActionLab->hide();
    for (QPushButton *command : m_ui->widget->findChildren<QPushButton *>())
        keepTextNarrow(command, TextMargins);
    keepTextNarrow(m_ui->m_keyLab, TextMargins);
    m_ui->m_assignLab->installEventFilter(this);
    m_ui->m_dualActionLab->installEventFilter(this);
    connectButtons();
    connectDialog();
}

AssignMenuWid::~AssignMenuWid()
{
    delete m_reassignDlg.data();
}

void AssignMenuWid::connectButtons()
{
    connect(m_ui->m_reassignKey, &QPushButton::clicked, this, &AssignMenuWid::slotKeyReassign);
    connect(m_ui->m_controllerMode, &QPushButton::clicked, this,
            &AssignMenuWid::slotControllerMode);
    connect(m_ui->m_dualActionMode, &QPushButton::clicked, this,
            &AssignMenuWid::slotDualActionMode);
    connect(m_ui->m_clearKey, &QPushButton::clicked, this, &AssignMenuWid::slotClearKeyAssign);
    connect(m_ui->m_disableKey, &QPushButton::clicked, this, &AssignMenuWid::slotDisableKey);
}

void AssignMenuWid::connectDialog()
{
    const ReassignDlg *const dialog = m_reassignDlg;
    connect(dialog, &ReassignDlg::sigVantrixKeyAssigned, this,
            &AssignMenuWid::slotVantrixKeyAssigned);
    connect(dialog, &ReassignDlg::sigCreateMacro, this, &AssignMenuWid::sigCreateMacro);
    connect(dialog, &ReassignDlg::sigMacroAssigned, this, &AssignMenuWid::slotMacroAssigned);
    connect(dialog, &ReassignDlg::sigApplicationAdvAssigned, this,
            &AssignMenuWid::slotApplicationAdvAssigned);
}

void AssignMenuWid::setMode(int iMode)
{
    m_iMode = iMode;
}

void AssignMenuWid::setProfile(int iOwner, int iProfile)
{
    if (m_reassignDlg)
        m_reassignDlg->setProfile(iOwner, iProfile);
}

void AssignMenuWid::addKeyAssignMacro(std::string strMacroName)
{
    if (m_reassignDlg)
        m_reassignDlg->addKeyAssignMacro(strMacroName);
}

void AssignMenuWid::delKeyAssignMacro(std::string strMacroName)
{
    if (m_reassignDlg)
        m_reassignDlg->delKeyAssignMacro(strMacroName);
}

void AssignMenuWid::renameKeyAssignMacro(std::string strOldName, std::string strNewName)
{
    if (m_reassignDlg)
        m_reassignDlg->renameKeyAssignMacro(strOldName, strNewName);
}

void AssignMenuWid::slotKeySelectionChanged(int iKeyIdx)
{
    m_iKeyIdx = ushort(iKeyIdx);
    m_ui->m_keyLab->setText(QStringLiteral("VANTRIX %1").arg(iKeyIdx + 1, 2, 10, QLatin1Char('0')));
    narrowText(m_ui->m_keyLab, m_ui->m_keyLab->text(), m_ui->m_keyLab->width() - TextMargins);
    m_ui->m_controllerMode->setVisible(iKeyIdx < MainKeyCount);
    m_ui->m_dualActionMode->setVisible(iKeyIdx < MainKeyCount);
}

void AssignMenuWid::slotVantrixKeySelected(vantrix_key_mapping key)
{
    if (key.type != KeyType::DualAction)
        takePlain(key);
    showDualActionLab();
    reveal();
}

void AssignMenuWid::slotUpdateVantrixKey(vantrix_key_mapping key)
{
    if (key.type != KeyType::DualAction)
        takePlain(key);
}

void AssignMenuWid::slotApplicationSelected(int iAppType, int iFuncId)
{
    Q_UNUSED(iAppType)
    Q_UNUSED(iFuncId)
    m_strMacroNo.clear();
    m_iState = InputType::Application;
    colorFrame();
    colorLabel(m_ui->m_assignLab, m_iState, QString());
    m_ui->m_dualActionLab->hide();
    reveal();
}

void AssignMenuWid::slotApplicationAdvSelected(QString strKeyName)
{
    m_strMacroNo.clear();
    m_iState = InputType::Application;
    applyState(m_iState, QString(), strKeyName, m_ui->m_assignLab);
    m_ui->m_dualActionLab->hide();
    reveal();
}

void AssignMenuWid::slotDualActionSelected(vantrix_key_mapping key)
{
    if (key.digital.firstAction != 0)
        takeDualAction(key);
    else
        takePlain(clearedKey());
    showDualActionLab();
    reveal();
}

void AssignMenuWid::slotMacroSelected(QString strMacroNo)
{
    takeLabel(InputType::Macro, strMacroNo);
    m_strMacroNo = strMacroNo;
    if (m_reassignDlg)
        m_reassignDlg->setMacroSelected(strMacroNo);
    m_ui->m_dualActionLab->hide();
    reveal();
}

void AssignMenuWid::slotKeyReassign()
{
    openDialog(m_iState);
}

void AssignMenuWid::slotControllerMode()
{
    openDialog(InputType::GameController);
}

void AssignMenuWid::slotDualActionMode()
{
    openDialog(InputType::DualAction);
}

void AssignMenuWid::slotClearKeyAssign()
{
    takePlain(clearedKey());
    emit sigVantrixKeyAssigned(m_key);
}

void AssignMenuWid::slotDisableKey()
{
    takePlain(vantrix_key_mapping());
    emit sigVantrixKeyAssigned(m_key);
}

void AssignMenuWid::slotVantrixKeyAssigned(vantrix_key_mapping key)
{
    const vantrix_key_mapping taken = assignable(key);
    if (taken.type == KeyType::DualAction)
        takeDualAction(taken);
    else
        takePlain(taken);
    showDualActionLab();
    emit sigVantrixKeyAssigned(taken);
}

void AssignMenuWid::slotMacroAssigned(bool bSelected, QString strMacroNo, QString strMacroName,
                                      int iShortcutId)
{
    if (bSelected) {
        takeLabel(InputType::Macro, strMacroNo);
        m_strMacroNo = strMacroNo;
    } else {
        takePlain(clearedKey());
    }
    showDualActionLab();
    emit sigMacroAssigned(bSelected, strMacroNo, strMacroName, iShortcutId);
}

void AssignMenuWid::slotApplicationAdvAssigned(QString strHotKey, QString strKeyName)
{
    if (strKeyName.isEmpty())
        takePlain(clearedKey());
    else
        takeLabel(InputType::Application, strKeyName);
    showDualActionLab();
    emit sigApplicationAdvAssigned(strHotKey, strKeyName);
}

/// Whatever the dialog's signals set off may destroy the menu: nothing may follow the call.
void AssignMenuWid::openDialog(int iState)
{
    if (!m_reassignDlg)
        return;
    const vantrix_key_mapping key = m_key;
    m_reassignDlg->setMacroSelected(m_strMacroNo);
    m_reassignDlg->openFor(m_iKeyIdx, iState, &key);
}

void AssignMenuWid::takePlain(const vantrix_key_mapping &key)
{
    m_key = key;
    m_strMacroNo.clear();
    const ushort code = effectiveCode(key);
    m_iState = inputTypeOfCode(m_iKeyIdx, char(key.type), code);
    showMapping(m_iState, code, m_ui->m_assignLab);
}

void AssignMenuWid::takeDualAction(const vantrix_key_mapping &key)
{
    m_key = key;
    m_strMacroNo.clear();
    m_iState = InputType::DualAction;
    const auto showAction = [this](ushort code, QLabel *lab) {
        showMapping(inputTypeOfCode(m_iKeyIdx, KeyType::DualAction, code), code, lab);
    };
    showAction(key.digital.firstAction, m_ui->m_assignLab);
    showAction(key.digital.secondAction, m_ui->m_dualActionLab);
}

/// The key shows a label from now on; the dialog must not take an older record for its function.
void AssignMenuWid::takeLabel(int iState, const QString &strText)
{
    m_key = clearedKey();
    m_key.type = KeyType::Label;
    m_strMacroNo.clear();
    m_iState = iState;
    applyState(iState, QString(), strText, m_ui->m_assignLab);
}

void AssignMenuWid::showMapping(int iState, ushort code, QLabel *lab)
{
    const QString image = imageOfState(iState, code);
    applyState(iState, image, mappingText(iState, code), lab);
    if (!image.isEmpty())
        lab->setAccessibleName(keyLegendOfCode(code));
}

QString AssignMenuWid::mappingText(int iState, ushort code) const
{
    if (iState == InputType::Media || iState == InputType::GameController)
        return QString();
    const bool isUnassigned = iState == InputType::Unassigned;
    // Legends are texts of buttons, which double their ampersands; a label shows both.
    return keyLegendOfCode(isUnassigned ? defaultCodeOfKey(m_iKeyIdx) : code)
        .replace(QLatin1String("&&"), QLatin1String("&"));
}

void AssignMenuWid::applyState(int iState, const QString &strImage, const QString &strText,
                               QLabel *lab)
{
    colorFrame();
    colorLabel(lab, iState, strImage);
    setWholeText(lab, strText);
    lab->setAccessibleName(QString());
}

void AssignMenuWid::colorFrame()
{
    setSheet(m_ui->m_keyLab, QStringLiteral("background:transparent;border:1px solid ") +
                                 colorName(m_iState) + QStringLiteral(";min-height:37px;"));
}

void AssignMenuWid::showDualActionLab()
{
    m_ui->m_dualActionLab->setVisible(m_iState == InputType::DualAction);
}

void AssignMenuWid::reveal()
{
    if (m_iMode != Mode::Simple)
        show();
}

bool AssignMenuWid::eventFilter(QObject *watched, QEvent *event)
{
    auto *const label = qobject_cast<QLabel *>(watched);
    if (label && event->type() == QEvent::Resize)
        Common::SetText(label, label->property(wholeTextProperty).toString());
    return QWidget::eventFilter(watched, event);
}
