#include "advanced/ControllerKeyWid.h"

#include "toolkit/NarrowText.h"
#include "vocabulary/Common.h"
#include "vocabulary/KeyCodes.h"

#include "ui_ControllerKeyUi.h"

#include <QFontMetrics>

#include <algorithm>

namespace {

constexpr int TextMargin = 4;
/// Of a row's width, at most: the buttons of narrow rows form a column too.
constexpr double KeysShare = 0.45;

QString padKeyName(int keyIdx)
{
    return QStringLiteral("VANTRIX %1").arg(keyIdx + 1, 2, 10, QLatin1Char('0'));
}

QString widestLine()
{
    return padKeyName(0) + QLatin1Char(',');
}

int widthOf(const QString &text, const QFont &font)
{
    return QFontMetrics(font).horizontalAdvance(text) + 2 * TextMargin;
}

} // namespace

ControllerKeyWid::ControllerKeyWid(int iKeyId, QWidget *parent)
    : QWidget(parent), m_ui(std::make_unique<Ui::ControllerKeyUi>()), m_iKeyId(iKeyId)
{
    m_ui->setupUi(this);
    const QString name = keyFunctionText(ushort(iKeyId));
    m_ui->m_gamepad->setText(name);
    m_ui->m_keyNo->setAccessibleName(name);
    measure();
    fit();
    connect(m_ui->m_keyNo, &QPushButton::clicked, this, &ControllerKeyWid::slotKeyAssigned);
}

ControllerKeyWid::~ControllerKeyWid() = default;

void ControllerKeyWid::setKeys(int iCurrKey, const std::vector<int> &lsKeys)
{
    m_iCurrKey = iCurrKey;
    m_lsKeys = lsKeys;
    updateKeyText();
}

void ControllerKeyWid::delCurrKey()
{
    if (takeCurrKey())
        updateKeyText();
}

void ControllerKeyWid::measure()
{
    m_ui->m_gamepad->ensurePolished();
    QFont found = m_ui->m_gamepad->font();
    found.setBold(true);
    m_nameWidth = widthOf(m_ui->m_gamepad->text(), found);
    m_ui->m_keyNo->ensurePolished();
    m_keysWidth = widthOf(widestLine(), m_ui->m_keyNo->font());
    m_ui->m_gamepad->setMinimumWidth(1);
}

QSize ControllerKeyWid::sizeHint() const
{
    return {m_nameWidth + m_keysWidth, QWidget::sizeHint().height()};
}

QSize ControllerKeyWid::minimumSizeHint() const
{
    return {(m_nameWidth + m_keysWidth) / 2, sizeHint().height() + TextMargin};
}

void ControllerKeyWid::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    fit();
}

void ControllerKeyWid::fit()
{
    const int keys = std::min(m_keysWidth, int(width() * KeysShare));
    m_ui->m_keyNo->setFixedWidth(keys);
    narrowText(m_ui->m_keyNo, widestLine(), keys - 2 * TextMargin);
    fitName();
    updateKeyText();
}

void ControllerKeyWid::fitName()
{
    const int room = width() - m_ui->m_keyNo->minimumWidth() - 2 * TextMargin;
    narrowText(m_ui->m_gamepad, m_ui->m_gamepad->text(), room);
}

bool ControllerKeyWid::takeCurrKey()
{
    const auto found = std::find(m_lsKeys.begin(), m_lsKeys.end(), m_iCurrKey);
    if (found == m_lsKeys.end())
        return false;
    m_lsKeys.erase(found);
    return true;
}

void ControllerKeyWid::slotKeyAssigned()
{
    if (takeCurrKey()) {
        emit sigGameControllerChanged(clearedKey());
    } else {
        m_lsKeys.insert(m_lsKeys.begin(), m_iCurrKey);
        emit sigAddCurrKeyToGamepad(ushort(m_iKeyId));
        emit sigGameControllerChanged(gameKey(ushort(m_iKeyId)));
    }
    updateKeyText();
}

void ControllerKeyWid::updateKeyText()
{
    QStringList names;
    for (const int keyIdx : m_lsKeys)
        names << padKeyName(keyIdx);
    Common::SetText(m_ui->m_keyNo, names.join(QStringLiteral(",\n")));
    m_ui->m_keyNo->setAccessibleDescription(names.join(QStringLiteral(", ")));
}

void ControllerKeyWid::search(QString strText)
{
    const bool found =
        !strText.isEmpty() && m_ui->m_gamepad->text().startsWith(strText, Qt::CaseInsensitive);
    const QString sheet =
        QStringLiteral("background:transparent;border:1px solid rgb(132,50,155);") +
        (found ? QStringLiteral("color:white;font-weight:bold;")
               : QStringLiteral("color:rgb(235,235,235);"));
    if (m_ui->m_gamepad->styleSheet() == sheet)
        return;
    m_ui->m_gamepad->setStyleSheet(sheet);
    fitName();
}
