#pragma once

#include "shell/ProfileCheck.h"
#include "shell/ShellContext.h"

#include <QStringList>
#include <QWidget>

class QButtonGroup;
class QLabel;
class QPushButton;
class QScrollArea;

/// What there is to look at before a profile is sent: the findings of ProfileCheck for the shown
/// profile or for all, each with buttons that lead to its keys. It follows every change while it
/// is shown, warns only, and says in the status line how much there is when a profile is applied.
class CheckPage : public QWidget
{
    Q_OBJECT

public:
    /// Findings that are listed; how many more there are is said above them.
    static constexpr int ListLimit = 100;
    enum Scope { ThisProfile, AllProfiles };

    explicit CheckPage(ShellContext &context, QWidget *parent = nullptr);

    void setScope(Scope scope);

protected:
    void showEvent(QShowEvent *event) override;

private:
    /// What the rows were made from.
    struct Shown
    {
        bool isAll = false;
        std::vector<CheckFinding> findings;
        QStringList names;

        bool operator==(const Shown &other) const
        {
            return isAll == other.isAll && findings == other.findings && names == other.names;
        }
    };

    void later();
    void refresh();
    void sayCount();
    static QString countText(int count);
    QWidget *makeRow(const CheckFinding &finding, QWidget *parent);
    QPushButton *makeChip(const CheckFinding &finding, const KeyPlace &place, QWidget *parent);
    QLabel *makeHeading(int profile, QWidget *parent) const;

    ShellContext &m_context;
    QButtonGroup *m_scope;
    QLabel *m_summary;
    QScrollArea *m_area;
    Shown m_shown;
    bool m_isStale = true;
};
