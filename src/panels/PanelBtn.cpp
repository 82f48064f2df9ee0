#include "panels/PanelBtn.h"

#include "toolkit/NarrowText.h"
#include "toolkit/PanelStyle.h"

#include <QHBoxLayout>
#include <QLabel>

namespace {

constexpr int GroupOffset = 10;
constexpr int Height = 25;
constexpr int IconSize = 20;

class PanelIcon : public QLabel
{
public:
    PanelIcon(const QString &tag, QWidget *parent) : QLabel(tag, parent)
    {
        setAlignment(Qt::AlignCenter);
        setStyleSheet(QStringLiteral("background:black;color:white;border:none;min-height:20px;"));
        ensurePolished();
        setFixedSize(IconSize, IconSize);
    }
};

} // namespace

PanelBtn::PanelBtn(const QString &tag, const QString &name, Offset offset, QWidget *parent)
    : FixedBtn(parent), m_row(new QHBoxLayout(this)), m_name(new QLabel(name, this)),
      m_offset(offset)
{
    setCheckable(true);
    setStyleSheet(offset == Offset::Group ? selectorSheet(QString()) : selectorSheet());
    fixSize(-1, Height);
    setAccessibleName(name);

    auto *const icon = new PanelIcon(tag, this);
    m_name->setObjectName(QStringLiteral("m_name"));
    m_name->setStyleSheet(QStringLiteral("QLabel{font-size:12px;}:hover{}"));
    for (QLabel *const part : {static_cast<QLabel *>(icon), m_name}) {
        // The button takes every click and shows the hover for both.
        part->setAttribute(Qt::WA_TransparentForMouseEvents);
        m_row->addWidget(part);
    }
    m_row->addStretch();
    m_row->setSpacing(4);
}

QSize PanelBtn::sizeHint() const
{
    return {m_row->sizeHint().width(), Height};
}

QSize PanelBtn::minimumSizeHint() const
{
    return {1, Height};
}

void PanelBtn::resizeEvent(QResizeEvent *event)
{
    FixedBtn::resizeEvent(event);
    const int offset = m_offset == Offset::Preset ? width() / 3 : GroupOffset;
    m_row->setContentsMargins(offset, 0, 0, 0);
    narrowText(m_name, m_name->text(), width() - offset - IconSize - m_row->spacing());
}
