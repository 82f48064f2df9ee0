#include "shell/CheckPage.h"

#include "host/StoreState.h"
#include "shell/FlowLayout.h"
#include "shell/KeyTitle.h"
#include "shell/ShellStyle.h"
#include "vocabulary/Common.h"

#include <QBoxLayout>
#include <QButtonGroup>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QTimer>

namespace {

/// Colour of a finding: what does nothing at all, what does less than meant, what may be meant.
QColor colourOf(CheckFinding::Kind kind)
{
    switch (kind) {
    case CheckFinding::MacroMissing:
    case CheckFinding::MacroEmpty:
        return QColor(0xff, 0x5c, 0x6c);
    case CheckFinding::SharedFunction:
        return ShellStyle::dim();
    default:
        return ShellStyle::warning();
    }
}

} // namespace

CheckPage::CheckPage(ShellContext &context, QWidget *parent)
    : QWidget(parent), m_context(context), m_scope(new QButtonGroup(this)),
      m_summary(new QLabel(this)), m_area(new QScrollArea(this))
{
    setObjectName(QStringLiteral("m_checkPage"));
    setStyleSheet(ShellStyle::panelSheet());
    auto *const layout = new QVBoxLayout(this);
    auto *const scopes = new QHBoxLayout;
    const QString titles[] = {tr("THIS PROFILE"), tr("ALL PROFILES")};
    const char *const names[] = {"m_thisProfileBtn", "m_allProfilesBtn"};
    for (const int scope : {ThisProfile, AllProfiles}) {
        auto *const button = new QPushButton(titles[scope], this);
        button->setObjectName(QLatin1String(names[scope]));
        button->setCheckable(true);
        m_scope->addButton(button, scope);
        scopes->addWidget(button);
    }
    scopes->addStretch();
    m_scope->button(ThisProfile)->setChecked(true);
    layout->addLayout(scopes);
    m_summary->setObjectName(QStringLiteral("m_summary"));
    m_summary->setWordWrap(true);
    layout->addWidget(m_summary);
    m_area->setObjectName(QStringLiteral("m_findings"));
    m_area->setWidgetResizable(true);
    m_area->setFrameShape(QFrame::NoFrame);
    m_area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    layout->addWidget(m_area, 1);

    const ProfileStore &store = context.store();
    connect(m_scope, &QButtonGroup::idClicked, this, &CheckPage::refresh);
    connect(&context, &ShellContext::profileShown, this, &CheckPage::later);
    connect(&context, &ShellContext::applied, this, &CheckPage::sayCount);
    connect(&store, &ProfileStore::profileChanged, this, &CheckPage::later);
    connect(&store, &ProfileStore::profileListChanged, this, &CheckPage::later);
    connect(&store, &ProfileStore::macrosChanged, this, &CheckPage::later);
    connect(&store, &ProfileStore::settingChanged, this, &CheckPage::later);
}

void CheckPage::setScope(Scope scope)
{
    m_scope->button(scope)->setChecked(true);
    refresh();
}

/// Looks again, now or when the page is shown, once for all changes of a turn.
void CheckPage::later()
{
    if (m_isStale)
        return;
    m_isStale = true;
    if (isVisible())
        QTimer::singleShot(0, this, &CheckPage::refresh);
}

void CheckPage::showEvent(QShowEvent *event)
{
    if (m_isStale)
        refresh();
    QWidget::showEvent(event);
}

QString CheckPage::countText(int count)
{
    if (count == 0)
        return tr("Nothing to look at.");
    return count == 1 ? tr("One thing to look at.") : tr("%1 things to look at.").arg(count);
}

void CheckPage::sayCount()
{
    const auto count =
        int(ProfileCheck(m_context.store(), m_context.owner()).check(m_context.profile()).size());
    if (count == 0)
        return;
    const QString name =
        m_context.store().state().profileName(m_context.owner(), m_context.profile());
    emit m_context.status(tr("%1 is on the device. %2 See CHECK.").arg(name, countText(count)));
}

void CheckPage::refresh()
{
    m_isStale = false;
    const ProfileCheck check(m_context.store(), m_context.owner());
    const bool all = m_scope->checkedId() == AllProfiles;
    const auto findings = all ? check.checkAll() : check.check(m_context.profile());
    const StoreState &state = m_context.store().state();
    QStringList names;
    for (int profile = 0; profile < ProfileCount; ++profile)
        names << state.profileName(m_context.owner(), profile);
    const Shown shown{all, findings, names};
    if (shown == m_shown)
        return; // where one was in the list, one stays
    m_shown = shown;
    const int count = int(findings.size());
    QString text = countText(count);
    if (count > ListLimit)
        text += QLatin1Char(' ') + tr("The first %1 are listed.").arg(ListLimit);
    m_summary->setText(text);

    auto *const content = new QWidget;
    auto *const layout = new QVBoxLayout(content);
    layout->setContentsMargins(0, 0, 4, 0);
    int profile = -1;
    for (int i = 0; i < std::min(count, ListLimit); ++i) {
        const CheckFinding &finding = findings[std::size_t(i)];
        if (all && finding.profile != profile)
            layout->addWidget(makeHeading(finding.profile, content));
        profile = finding.profile;
        layout->addWidget(makeRow(finding, content));
    }
    layout->addStretch();
    // the click on a chip may have led here: the old rows go when it is over
    const int place = m_area->verticalScrollBar()->value();
    if (QWidget *const old = m_area->takeWidget())
        old->deleteLater();
    m_area->setWidget(content);
    QTimer::singleShot(0, content, [this, place] { m_area->verticalScrollBar()->setValue(place); });
}

QLabel *CheckPage::makeHeading(int profile, QWidget *parent) const
{
    auto *const heading =
        new QLabel(m_context.store().state().profileName(m_context.owner(), profile), parent);
    heading->setTextFormat(Qt::PlainText);
    heading->setStyleSheet(ShellStyle::headingSheet());
    return heading;
}

QWidget *CheckPage::makeRow(const CheckFinding &finding, QWidget *parent)
{
    auto *const row = new QFrame(parent);
    row->setObjectName(QStringLiteral("finding"));
    row->setStyleSheet(QStringLiteral("#finding{background:%1;border-left:4px solid %2;}")
                           .arg(ShellStyle::panel().name(), colourOf(finding.kind).name()));
    auto *const layout = new QVBoxLayout(row);
    auto *const text = new QLabel(finding.text, row);
    text->setTextFormat(Qt::PlainText);
    text->setWordWrap(true);
    layout->addWidget(text);
    auto *const chips = new QWidget(row);
    auto *const flow = new FlowLayout(chips);
    for (const KeyPlace &place : finding.places)
        flow->addWidget(makeChip(finding, place, chips));
    layout->addWidget(chips);
    return row;
}

QPushButton *CheckPage::makeChip(const CheckFinding &finding, const KeyPlace &place,
                                 QWidget *parent)
{
    const QString name = m_context.store().state().profileName(m_context.owner(), place.profile);
    QString text = KeyTitle::of(place.keyIdx);
    if (!isValidKey(place.keyIdx))
        text = name;
    else if (place.profile != finding.profile)
        text = QStringLiteral("%1 \u00B7 %2").arg(name, text);
    auto *const chip = new QPushButton(Common::ButtonText(text), parent);
    chip->setToolTip(tr("Go there"));
    connect(chip, &QPushButton::clicked, this, [this, place] {
        emit m_context.goTo(place.profile, place.keyIdx);
        emit m_context.keysWanted();
    });
    return chip;
}
