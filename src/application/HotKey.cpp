#include "application/HotKey.h"

#include "application/BranchTitle.h"
#include "toolkit/SearchGrid.h"

#include <QFontMetrics>
#include <QTextDocument>

namespace {

/// A tool tip that shows its text as it is.
QString plainTip(const QString &text)
{
    return Qt::mightBeRichText(text)
               ? QStringLiteral("<qt>") + text.toHtmlEscaped() + QStringLiteral("</qt>")
               : text;
}

} // namespace

HotKey::HotKey(QString strKeyName, QString strHotKey, QWidget *parent)
    : QPushButton(SearchGrid::buttonText(shownPart(strKeyName)), parent),
      m_strKeyName(std::move(strKeyName)), m_strHotKey(std::move(strHotKey))
{
    setCheckable(true);
    setAutoDefault(false);
    setToolTip(plainTip(shownPart(m_strKeyName) + QStringLiteral(" (") + shownPart(m_strHotKey) +
                        QStringLiteral(") ")));
}

void HotKey::fit(int width, const QFontMetrics &metrics)
{
    if (minimumWidth() == width && maximumWidth() == width)
        return;
    setFixedWidth(width);
    setText(
        SearchGrid::buttonText(metrics.elidedText(shownPart(m_strKeyName), Qt::ElideRight, width)));
}

void HotKey::focusInEvent(QFocusEvent *event)
{
    // A button would leave the Tab key to none but itself in its group, which is the whole tree.
    QWidget::focusInEvent(event);
}
