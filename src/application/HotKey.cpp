#include "application/HotKey.h"

#include "application/BranchTitle.h"
#include "vocabulary/Common.h"

#include <QFontMetrics>

HotKey::HotKey(QString strKeyName, QString strHotKey, QWidget *parent)
    : QPushButton(Common::ButtonText(shownPart(strKeyName)), parent),
      m_strKeyName(std::move(strKeyName)), m_strHotKey(std::move(strHotKey))
{
    setCheckable(true);
    setAutoDefault(false);
    setToolTip(Common::PlainTip(shownPart(m_strKeyName) + QStringLiteral(" (") +
                                shownPart(m_strHotKey) + QStringLiteral(") ")));
}

void HotKey::fit(int width, const QFontMetrics &metrics)
{
    if (minimumWidth() == width && maximumWidth() == width)
        return;
    setFixedWidth(width);
    const QString full = shownPart(m_strKeyName);
    const QString shown = metrics.elidedText(full, Qt::ElideRight, width);
    setText(Common::ButtonText(shown));
    setAccessibleName(shown == full ? QString() : full);
}

void HotKey::focusInEvent(QFocusEvent *event)
{
    // A button would leave the Tab key to none but itself in its group, which is the whole tree.
    QWidget::focusInEvent(event);
}
