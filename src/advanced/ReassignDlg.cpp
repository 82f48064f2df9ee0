#include "advanced/ReassignDlg.h"

#include "interfaces/IEnvironment.h"
#include "interfaces/Modal.h"
#include "toolkit/FocusRing.h"
#include "toolkit/PanelStyle.h"
#include "ui_ReassignDlg.h"
#include "vocabulary/KeyCodes.h"

#include <QButtonGroup>
#include <QKeyEvent>
#include <QPainter>
#include <QPointer>
#include <QStyleOption>
#include <QWindow>

namespace {

/// Input types that have a page, from 0.
constexpr int InputCount = 10;

} // namespace

ReassignDlg::ReassignDlg(QWidget *parent)
    : QDialog(parent), m_ui(new Ui::ReassignDlg), m_inputGroup(new QButtonGroup(this))
{
    setWindowFlags(windowFlags() | Qt::FramelessWindowHint);
    setAttribute(Qt::WA_TranslucentBackground);
    m_ui->setupUi(this);
    // The veil is as large as the window under it, however little room that leaves.
    setMinimumSize(1, 1);
    setUpSearch();
    buildInputs();
    fillPickers();
    orderTabs();
    connectSearch();
    connectSelection();
    connectPicks();
    new FocusRing(this);
}

ReassignDlg::~ReassignDlg() = default;

/// The field is lighter than what surrounds it.
void ReassignDlg::setUpSearch()
{
    QPalette palette = m_ui->m_search->palette();
    palette.setColor(QPalette::Text, Qt::black);
    palette.setColor(QPalette::PlaceholderText, QColor(50, 50, 50));
    m_ui->m_search->setPalette(palette);
    m_ui->m_search->setTextMargins(8, 0, 8, 0);
    m_ui->m_search->setClearButtonEnabled(true);
}

void ReassignDlg::buildInputs()
{
    for (int input = 0; input < InputCount; ++input) {
        auto *button = new QPushButton(inputTypeText(input), m_ui->left_widget);
        button->setObjectName(QStringLiteral("input_%1").arg(input));
        button->setCheckable(true);
        button->setStyleSheet(selectorSheet());
        m_inputGroup->addButton(button, input);
        m_ui->m_inputLayout->addWidget(button);
    }
    connect(m_inputGroup, &QButtonGroup::idClicked, this, &ReassignDlg::slotInputChanged);
}

void ReassignDlg::fillPickers()
{
    const auto fill = [](AdvAssignWid *page, const QString &title, int input) {
        page->setKeys(title, InputKeyLists().at(input));
    };
    fill(m_ui->m_mouse, tr("MOUSE BUTTONS"), InputType::Mouse);
    fill(m_ui->m_media, tr("MEDIA COMMANDS"), InputType::Media);
    fill(m_ui->m_pressoFunc, tr("PRESSO FUNCTIONS"), InputType::PressoFunctions);
    fill(m_ui->m_backlight, tr("BACKLIGHT"), InputType::Backlight);
    fill(m_ui->m_profile, tr("PROFILE"), InputType::Profile);
}

/// The buttons of the list were made after the form.
void ReassignDlg::orderTabs()
{
    QWidget *last = m_ui->m_close;
    for (int input = 0; input < InputCount; ++input) {
        setTabOrder(last, m_inputGroup->button(input));
        last = m_inputGroup->button(input);
    }
    setTabOrder(last, m_ui->m_search);
}

void ReassignDlg::connectSearch()
{
    connect(m_ui->m_search, &QLineEdit::textChanged, this, &ReassignDlg::sigSearch);
    connect(this, &ReassignDlg::sigSearch, m_ui->m_keyboard, &KeyboardAdvWid::sigSearch);
    connect(this, &ReassignDlg::sigSearch, m_ui->m_application, &ApplicationAdvWid::sigSearch);
    for (const AdvAssignWid *page :
         {m_ui->m_mouse, m_ui->m_media, m_ui->m_pressoFunc, m_ui->m_backlight, m_ui->m_profile})
        connect(this, &ReassignDlg::sigSearch, page, &AdvAssignWid::slotSearch);
    connect(this, &ReassignDlg::sigSearch, m_ui->m_macro, &MacroAdvWid::slotSearch);
    connect(this, &ReassignDlg::sigSearch, m_ui->m_gameController,
            &GameControllerAdvWid::slotSearch);
    connect(this, &ReassignDlg::sigSearch, m_ui->m_dualAction, &DualActionAdvWid::slotSearch);
}

/// The controller page is left out: it reads the store.
void ReassignDlg::connectSelection()
{
    connect(this, &ReassignDlg::sigVantrixKeySelected, m_ui->m_keyboard,
            &KeyboardAdvWid::sigVantrixKeySelected);
    for (const AdvAssignWid *page :
         {m_ui->m_mouse, m_ui->m_media, m_ui->m_pressoFunc, m_ui->m_backlight, m_ui->m_profile})
        connect(this, &ReassignDlg::sigVantrixKeySelected, page,
                &AdvAssignWid::slotVantrixKeySelected);
    connect(this, &ReassignDlg::sigVantrixKeySelected, m_ui->m_macro,
            &MacroAdvWid::slotVantrixKeySelected);
    connect(this, &ReassignDlg::sigVantrixKeySelected, m_ui->m_dualAction,
            &DualActionAdvWid::slotVantrixKeySelected);
    connect(this, &ReassignDlg::sigVantrixKeySelected, m_ui->m_application,
            &ApplicationAdvWid::sigVantrixKeySelected);
}

void ReassignDlg::connectPicks()
{
    connect(m_ui->m_keyboard, &KeyboardAdvWid::sigKeyChanged, this,
            &ReassignDlg::slotVantrixKeyAssigned);
    for (const AdvAssignWid *page :
         {m_ui->m_mouse, m_ui->m_media, m_ui->m_pressoFunc, m_ui->m_backlight, m_ui->m_profile})
        connect(page, &AdvAssignWid::sigKeyChanged, this, &ReassignDlg::slotVantrixKeyAssigned);
    connect(m_ui->m_gameController, &GameControllerAdvWid::sigGameControllerChanged, this,
            &ReassignDlg::slotVantrixKeyAssigned);
    connect(m_ui->m_dualAction, &DualActionAdvWid::sigDualActionChanged, this,
            &ReassignDlg::slotVantrixKeyAssigned);
    connect(m_ui->m_macro, &MacroAdvWid::sigCreateMacro, this, &ReassignDlg::slotCreateMacro);
    connect(m_ui->m_macro, &MacroAdvWid::sigMacroAssigned, this, &ReassignDlg::slotMacroAssigned);
    connect(m_ui->m_application, &ApplicationAdvWid::sigAppHotKeyChanged, this,
            &ReassignDlg::slotAppHotKeyChanged);
    connect(m_ui->m_apply, &QPushButton::clicked, this, &ReassignDlg::slotApply);
    connect(m_ui->m_cancel, &QPushButton::clicked, this, &ReassignDlg::reject);
    connect(m_ui->m_close, &QPushButton::clicked, this, &ReassignDlg::reject);
}

void ReassignDlg::openFor(int iKeyIdx, int iState, const vantrix_key_mapping *key)
{
    resetPick(*key);
    m_inputGroup->button(InputType::GameController)->setVisible(iKeyIdx < MainKeyCount);
    m_inputGroup->button(InputType::DualAction)->setVisible(iKeyIdx < MainKeyCount);
    m_ui->m_keyNo->setText(QStringLiteral("%1").arg(iKeyIdx + 1, 2, 10, QLatin1Char('0')));

    const bool hasPage = iState >= 0 && iState < m_ui->m_stacked->count();
    const int page = hasPage ? iState : int(InputType::Keyboard);
    m_inputGroup->button(page)->setChecked(true);
    slotInputChanged(page);
    emit sigVantrixKeySelected(m_key);

    coverMainWindow();
    m_inputGroup->button(page)->setFocus();
    Modal::exec(this);
}

void ReassignDlg::setProfile(int iOwner, int iProfile)
{
    m_iOwner = iOwner;
    m_iProfile = iProfile;
    m_ui->m_macro->clearMacros();
}

void ReassignDlg::addKeyAssignMacro(std::string strMacroName)
{
    m_ui->m_macro->addMacro(strMacroName);
}

void ReassignDlg::delKeyAssignMacro(std::string strMacroName)
{
    m_ui->m_macro->delMacro(strMacroName);
}

void ReassignDlg::renameKeyAssignMacro(std::string strOldName, std::string strNewName)
{
    m_ui->m_macro->renameMacro(strOldName, strNewName);
}

void ReassignDlg::setMacroSelected(QString strMacroNo)
{
    if (strMacroNo.isEmpty())
        m_ui->m_macro->slotVantrixKeySelected(clearedKey());
    else
        m_ui->m_macro->selectMacro(strMacroNo);
}

void ReassignDlg::slotCreateMacro()
{
    const QPointer<ReassignDlg> self(this);
    emit sigCreateMacro();
    if (self)
        accept();
}

void ReassignDlg::slotInputChanged(int input)
{
    m_ui->m_searchStack->setCurrentIndex(input == InputType::DualAction ? 1 : 0);
    m_ui->m_stacked->setCurrentIndex(input);
    if (input == InputType::GameController)
        m_ui->m_gameController->setProfile(m_iOwner, m_iProfile);
}

void ReassignDlg::slotVantrixKeyAssigned(vantrix_key_mapping key)
{
    m_key = key;
    m_bAppKey = false;
    m_bPicked = true;
    emit sigVantrixKeySelected(key);
}

void ReassignDlg::slotMacroAssigned(bool bSelected, QString strMacroNo, QString strMacroName,
                                    int iShortcutId)
{
    m_key = vantrix_key_mapping();
    m_key.type = KeyType::Label;
    m_bMacroSelected = bSelected;
    m_strMacroNo = strMacroNo;
    m_strMacroName = strMacroName;
    m_iShortcutId = iShortcutId;
    m_bAppKey = false;
    m_bPicked = true;
    if (bSelected)
        emit sigVantrixKeySelected(m_key);
}

void ReassignDlg::slotAppHotKeyChanged(QString strHotKey, QString strKeyName)
{
    // A type of 1 would leave the macro page's check mark standing.
    m_key = vantrix_key_mapping();
    emit sigVantrixKeySelected(m_key);
    m_key.type = KeyType::Label;
    m_bAppKey = true;
    m_strHotKey = strHotKey;
    m_strKeyName = strKeyName;
    m_bPicked = true;
}

void ReassignDlg::slotApply()
{
    const QPointer<ReassignDlg> self(this);
    sendPick();
    if (self)
        accept();
}

void ReassignDlg::resetPick(const vantrix_key_mapping &key)
{
    m_key = key;
    m_bMacroSelected = false;
    m_iShortcutId = -1;
    m_strMacroNo.clear();
    m_strMacroName.clear();
    m_bAppKey = false;
    m_strHotKey.clear();
    m_strKeyName.clear();
    m_bPicked = false;
}

void ReassignDlg::sendPick()
{
    if (m_key.type != KeyType::Label)
        emit sigVantrixKeyAssigned(m_key);
    else if (!m_bPicked)
        return;
    else if (m_bAppKey)
        emit sigApplicationAdvAssigned(m_strHotKey, m_strKeyName);
    else
        emit sigMacroAssigned(m_bMacroSelected, m_strMacroNo, m_strMacroName, m_iShortcutId);
}

/// Takes the rectangle of the host's window, and follows it while the dialog is open.
void ReassignDlg::coverMainWindow()
{
    QWindow *const window = IEnvironment::Instance()->getMainWindow();
    if (!window)
        return;
    setGeometry(window->geometry());
    for (const auto changed :
         {&QWindow::xChanged, &QWindow::yChanged, &QWindow::widthChanged, &QWindow::heightChanged})
        connect(window, changed, this, &ReassignDlg::slotMainWindowMoved, Qt::UniqueConnection);
}

void ReassignDlg::slotMainWindowMoved()
{
    const auto *const window = qobject_cast<QWindow *>(sender());
    if (isVisible() && window)
        setGeometry(window->geometry());
}

/// Pages add to their lists at any time, and what is new is the last that Tab would reach.
bool ReassignDlg::focusNextPrevChild(bool next)
{
    QWidget *last = previousInFocusChain();
    while (last->focusPolicy() == Qt::NoFocus)
        last = last->previousInFocusChain();
    if (last != m_ui->m_apply) {
        setTabOrder(last, m_ui->m_cancel);
        setTabOrder(m_ui->m_cancel, m_ui->m_apply);
    }
    return QDialog::focusNextPrevChild(next);
}

/// The pointer leaves with the window, and nobody tells what was under it: a button would still be
/// lit when the dialog opens again.
void ReassignDlg::hideEvent(QHideEvent *event)
{
    QDialog::hideEvent(event);
    const auto children = findChildren<QWidget *>();
    for (QWidget *child : children) {
        QEvent leave(QEvent::Leave);
        if (child->underMouse())
            QCoreApplication::sendEvent(child, &leave);
    }
}

void ReassignDlg::keyPressEvent(QKeyEvent *event)
{
    // What has the focus has had its turn; a dialog would press a button of its own choice.
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        event->accept();
    else
        QDialog::keyPressEvent(event);
}

void ReassignDlg::paintEvent(QPaintEvent *event)
{
    Q_UNUSED(event)
    // A translucent window does not paint its sheet's ground by itself.
    QStyleOption option;
    option.initFrom(this);
    QPainter painter(this);
    style()->drawPrimitive(QStyle::PE_Widget, &option, &painter, this);
}
