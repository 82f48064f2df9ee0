#include "dualaction/DualActionWid.h"

#include "dualaction/ActionAssignWid.h"
#include "interfaces/IEnvironment.h"
#include "ui_DualActionUi.h"

#include <QHideEvent>
#include <QTimer>

namespace {

/// Device code of a pick, 0 for none.
ushort pickedCode(const vantrix_key_mapping &key)
{
    const ushort code = key.type == KeyType::Plain ? key.code : key.altCode;
    return code == UnassignedCode ? 0 : code;
}

} // namespace

DualActionWid::DualActionWid(QWidget *parent) : QWidget(parent), m_ui(new Ui::DualActionUi)
{
    m_ui->setupUi(this);
    createOverlay();
    m_ui->m_action1->setActionNo(1);
    m_ui->m_action2->setActionNo(2);
    m_ui->m_action2->setActionEnabled(false);
    for (ActionWid *action : {m_ui->m_action1, m_ui->m_action2})
        connect(action, &ActionWid::sigActionAssigned, this, &DualActionWid::slotActionAssigned);
    connect(m_ui->m_distanceWid, &DualActionDistWid::sigDualActionDepthChanged, this,
            &DualActionWid::sigDualActionDepthChanged);
}

DualActionWid::~DualActionWid()
{
    delete m_overlay.data();
}

void DualActionWid::createOverlay()
{
    QWidget *const mainWid = IEnvironment::Instance()->getMainWidget();
    // Without a main widget there is nothing to lie over.
    if (!mainWid)
        return;
    m_overlay = new ActionAssignWid(mainWid);
    m_overlay->setObjectName(QStringLiteral("m_overlay"));
    connect(m_overlay, &ActionAssignWid::sigDualActionBack, this,
            &DualActionWid::sigDualActionBack);
    connect(m_overlay, &ActionAssignWid::sigDualActionApply, this,
            &DualActionWid::sigDualActionApply);
    connect(m_overlay, &ActionAssignWid::sigDualActionChanged, this,
            &DualActionWid::slotDualActionChanged);
    m_overlay->hide();
    mainWid->installEventFilter(this);
}

void DualActionWid::resetPanel()
{
    m_ui->m_action1->resetAction();
    m_ui->m_action2->resetAction();
    m_ui->m_action2->setActionEnabled(false);
    m_ui->m_distanceWid->setDistance(50);
    if (m_overlay)
        m_overlay->resetOverlay();
    aimOverlay();
}

void DualActionWid::setOverlayMask(QRegion keyBoardRegion)
{
    if (m_overlay)
        m_overlay->setMask(QRegion(m_overlay->rect()) - keyBoardRegion);
}

void DualActionWid::setCaptureEnabled(bool enabled)
{
    // Not passed on to an open overlay: it has the focus, which a host may take for having left
    // the page.
    m_captureEnabled = enabled;
}

bool DualActionWid::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Resize && m_overlay && watched == m_overlay->parentWidget())
        fitOverlay();
    return QWidget::eventFilter(watched, event);
}

void DualActionWid::slotDualActionSelected(int input1, int input2, vantrix_presso_digital key)
{
    m_ui->m_action1->setInput(input1);
    m_ui->m_action1->setKeyCode(key.firstAction);
    m_ui->m_action2->setInput(input2);
    m_ui->m_action2->setKeyCode(key.secondAction);
    m_ui->m_action2->setActionEnabled(true);
    m_ui->m_distanceWid->setDistance(key.depth);
    aimOverlay();
}

void DualActionWid::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    fitOverlay();
}

void DualActionWid::hideEvent(QHideEvent *event)
{
    // Leaving the page with the overlay up would leave the host's window dark and its keyboard
    // held.
    if (!event->spontaneous() && m_overlay && m_overlay->isVisible()) {
        m_overlay->closeOverlay();
        emit sigDualActionBack();
    }
    QWidget::hideEvent(event);
}

void DualActionWid::fitOverlay()
{
    if (!m_overlay)
        return;
    m_overlay->setFixedSize(m_overlay->parentWidget()->size());
    if (m_overlay->isVisible()) {
        // The board takes its new place only once the layouts have run.
        QTimer::singleShot(0, this, &DualActionWid::askMask);
    }
}

void DualActionWid::askMask()
{
    if (m_overlay && m_overlay->isVisible())
        emit sigGetVantrixMask(m_overlay->parentWidget());
}

void DualActionWid::aimOverlay()
{
    if (!m_overlay || !m_overlay->isVisible())
        return;
    const bool isSecond = m_openedFor != 1 && m_ui->m_action1->keyCode() != 0;
    const ActionWid *const action = isSecond ? m_ui->m_action2 : m_ui->m_action1;
    m_overlay->setAction(isSecond ? 2 : 1, action->title());
}

void DualActionWid::slotActionAssigned(int actionNo, int inputType, QString strAction)
{
    if (!m_overlay)
        createOverlay();
    if (!m_overlay)
        return;
    fitOverlay();
    emit sigGetVantrixMask(m_overlay->parentWidget());
    m_openedFor = actionNo;
    m_overlay->openOverlay(actionNo, inputType, strAction, m_captureEnabled);
}

void DualActionWid::slotDualActionChanged(int actionNo, vantrix_key_mapping key)
{
    const ushort code = pickedCode(key);
    if (actionNo == 1) {
        m_ui->m_action2->setActionEnabled(code != 0);
        m_ui->m_action1->setKeyCode(code);
    } else {
        m_ui->m_action2->setKeyCode(code);
    }
    key.digital.firstAction = m_ui->m_action1->keyCode();
    key.digital.secondAction = m_ui->m_action2->keyCode();
    key.digital.dualType = DualType::Normal;
    key.digital.depth = quint8(m_ui->m_distanceWid->distance());
    emit sigDualActionChanged(key);
}
