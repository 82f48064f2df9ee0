#include "panels/PanelBtn.h"

#include "panels/PanelStyle.h"

#include <QHBoxLayout>
#include <QLabel>

namespace {

class PanelIcon : public QLabel
{
public:
    PanelIcon(const QString &tag, QWidget *parent) : QLabel(tag, parent)
    {
        setAlignment(Qt::AlignCenter);
        setStyleSheet(QStringLiteral("background:black;color:white;border:none;min-height:20px;"));
        ensurePolished();
        setFixedSize(20, 20);
    }
};

constexpr int GroupOffset = 10;
constexpr int Height = 25;

} // namespace

PanelBtn::PanelBtn(const QString &tag, const QString &name, Offset offset, QWidget *parent)
    : FixedBtn(parent), m_row(new QHBoxLayout(this)), m_offset(offset)
{
    setCheckable(true);
    setStyleSheet(offset == Offset::Group ? selectorSheet(QString()) : selectorSheet());
    fixSize(-1, Height);
    setAccessibleName(name);

    auto *const icon = new PanelIcon(tag, this);
    auto *const label = new QLabel(name, this);
    label->setStyleSheet(QStringLiteral("QLabel{font-size:12px;}:hover{}"));
    for (QLabel *const part : {static_cast<QLabel *>(icon), label}) {
        // The button takes every click and shows the hover for both.
        part->setAttribute(Qt::WA_TransparentForMouseEvents);
        m_row->addWidget(part);
    }
    m_row->addStretch();
    m_row->setContentsMargins(GroupOffset, 0, 0, 0);
}

QSize PanelBtn::sizeHint() const
{
    return {m_row->sizeHint().width(), Height};
}

void PanelBtn::resizeEvent(QResizeEvent *event)
{
    FixedBtn::resizeEvent(event);
    if (m_offset == Offset::Preset)
        m_row->setContentsMargins(width() / 3, 0, 0, 0);
}
