#pragma once

#include <QPushButton>

class QFontMetrics;

/// A leaf of the hot-key browser: one hot key of the catalog. Checkable; its sheet is the one of
/// the group it stands in.
class HotKey : public QPushButton
{
    Q_OBJECT

public:
    HotKey(QString strKeyName, QString strHotKey, QWidget *parent);

    const QString &keyName() const { return m_strKeyName; }
    const QString &hotKey() const { return m_strHotKey; }

    /// Gives the button a width and as much of its name as finds room in it.
    void fit(int width, const QFontMetrics &metrics);

protected:
    void focusInEvent(QFocusEvent *event) override;

private:
    const QString m_strKeyName;
    const QString m_strHotKey;
};
