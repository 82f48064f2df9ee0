#include "shell/FindBar.h"

#include "shell/FunctionDelegate.h"
#include "shell/KeyTitle.h"
#include "shell/PadView.h"
#include "shell/ShellStyle.h"

#include <QBoxLayout>
#include <QFrame>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>

#include <algorithm>

namespace {

constexpr QSize ResultsSize(620, 380);

} // namespace

FindBar::FindBar(ShellContext &context, QWidget *parent)
    : QWidget(parent), m_context(context), m_field(new QLineEdit(this))
{
    setObjectName(QStringLiteral("m_findBar"));
    setStyleSheet(ShellStyle::panelSheet());
    m_field->setObjectName(QStringLiteral("m_findField"));
    m_field->setPlaceholderText(tr("Find a function, key or macro"));
    m_field->setAccessibleName(tr("Find"));
    m_field->setClearButtonEnabled(true);
    m_field->setAcceptDrops(false); // a file is none that can be found
    m_field->setMinimumWidth(80);
    m_field->installEventFilter(this);
    setFocusProxy(m_field);
    auto *const layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_field);
    connect(m_field, &QLineEdit::textChanged, this, &FindBar::search);
    const ProfileStore &store = context.store();
    connect(&store, &ProfileStore::profileChanged, this, &FindBar::forget);
    connect(&store, &ProfileStore::profileListChanged, this, &FindBar::forget);
    connect(&store, &ProfileStore::settingChanged, this, &FindBar::forget, Qt::QueuedConnection);
    connect(&context, &ShellContext::pageShown, this, &FindBar::closeResults);
}

FindBar::~FindBar()
{
    delete m_results.data();
}

void FindBar::begin()
{
    m_field->setFocus(Qt::ShortcutFocusReason);
    m_field->selectAll();
}

/// The list floats over the window, so that nothing moves while one types.
void FindBar::makeResults()
{
    m_results = new QFrame(window());
    m_results->setObjectName(QStringLiteral("m_findResults"));
    m_results->setAutoFillBackground(true);
    m_results->setStyleSheet(ShellStyle::panelSheet() +
                             QStringLiteral("#m_findResults{background:%1;border:1px solid %2;"
                                            "border-radius:6px;}")
                                 .arg(ShellStyle::window().name(), ShellStyle::line().name()));
    m_list = new QListWidget(m_results);
    m_list->setObjectName(QStringLiteral("m_findList"));
    m_list->setAccessibleName(tr("Keys that were found"));
    m_list->setItemDelegate(new FunctionDelegate(m_list));
    m_list->setUniformItemSizes(true);
    m_list->setFocusPolicy(Qt::NoFocus);
    m_count = new QLabel(m_results);
    m_count->setObjectName(QStringLiteral("m_findCount"));
    m_count->setWordWrap(true);
    m_count->setStyleSheet(QStringLiteral("color:%1;").arg(ShellStyle::dim().name()));
    m_profile = new QLabel(m_results);
    m_profile->setTextFormat(Qt::PlainText);
    m_profile->setObjectName(QStringLiteral("m_findProfile"));
    m_profile->setStyleSheet(ShellStyle::headingSheet());
    m_profile->setAlignment(Qt::AlignCenter);
    m_pad = new PadView(m_results);
    m_pad->setObjectName(QStringLiteral("m_findPad"));
    m_pad->setFocusPolicy(Qt::NoFocus);
    auto *const left = new QVBoxLayout;
    left->addWidget(m_list, 1);
    left->addWidget(m_count);
    auto *const right = new QVBoxLayout;
    right->addWidget(m_profile);
    right->addWidget(m_pad, 1);
    auto *const layout = new QHBoxLayout(m_results);
    layout->addLayout(left, 3);
    layout->addLayout(right, 2);
    connect(m_list, &QListWidget::currentRowChanged, this, &FindBar::showProfileOf);
    connect(m_list, &QListWidget::itemClicked, this, &FindBar::go);
}

void FindBar::forget()
{
    m_isRead = false;
    if (m_field->text().isEmpty())
        return;
    mark();
    if (isOpen())
        showHits();
}

void FindBar::search()
{
    mark();
    if (!m_results)
        makeResults();
    showHits();
}

/// Finds, and tells whom it is found for; the list is another matter.
void FindBar::mark()
{
    if (!m_isRead)
        m_finder.read(m_context.store().state(), m_context.owner());
    m_isRead = true;
    m_hits = m_finder.find(m_field->text(), m_context.profile());
    std::set<std::pair<int, int>> marked;
    for (const KeyHit &hit : m_hits)
        marked.insert({hit.profile, hit.keyIdx});
    emit m_context.keysMarked(marked);
}

void FindBar::showHits()
{
    if (m_field->text().trimmed().isEmpty()) {
        m_results->hide();
        return;
    }
    const StoreState &state = m_context.store().state();
    const int shown = std::min(int(m_hits.size()), ListLimit);
    m_list->clear();
    for (int i = 0; i < shown; ++i) {
        const KeyHit &hit = m_hits[std::size_t(i)];
        auto *const item =
            new QListWidgetItem(QStringLiteral("%1  \u00B7  %2, %3")
                                    .arg(hit.function, KeyTitle::of(hit.keyIdx),
                                         state.profileName(m_context.owner(), hit.profile)),
                                m_list);
        item->setData(FunctionDelegate::KindRole, hit.inputType);
    }
    std::set<int> profiles;
    for (const KeyHit &hit : m_hits)
        profiles.insert(hit.profile);
    QString text = m_hits.empty()
                       ? tr("No key has that.")
                       : tr("Keys: %1, profiles: %2.").arg(m_hits.size()).arg(profiles.size());
    if (shown < int(m_hits.size()))
        text += QLatin1Char(' ') + tr("The first %1 are listed.").arg(shown);
    m_count->setText(text);
    m_list->setHidden(m_hits.empty());
    if (m_hits.empty())
        showProfileOf(-1);
    placeResults();
    m_results->show();
    m_results->raise();
    m_list->setCurrentRow(0);
}

void FindBar::placeResults()
{
    if (!m_results)
        return;
    const QRect room = window()->rect().adjusted(8, 8, -8, -8);
    // nothing found takes one line
    const int tall = m_hits.empty() ? m_results->sizeHint().height() : ResultsSize.height();
    QRect place(mapTo(window(), QPoint(0, height() + 2)), QSize(ResultsSize.width(), tall));
    place.setSize(place.size().boundedTo(QSize(room.width(), room.bottom() - place.top())));
    place.moveLeft(std::max(room.left(), std::min(place.left(), room.right() - place.width())));
    m_results->setGeometry(place);
}

void FindBar::showProfileOf(int row)
{
    const bool isHit = row >= 0 && row < int(m_hits.size());
    m_pad->setVisible(isHit);
    m_profile->setVisible(isHit);
    if (!isHit)
        return;
    const KeyHit &current = m_hits[std::size_t(row)];
    const StoreState &state = m_context.store().state();
    m_profile->setText(state.profileName(m_context.owner(), current.profile));
    m_pad->setKeys(padKeys(state.keys(m_context.owner(), current.profile)));
    std::set<int> lit;
    for (const KeyHit &hit : m_hits) {
        if (hit.profile == current.profile)
            lit.insert(hit.keyIdx);
    }
    m_pad->setLit(lit);
    m_pad->setCurrentKey(current.keyIdx);
}

void FindBar::move(int by)
{
    const int last = m_list ? m_list->count() - 1 : -1;
    if (last >= 0)
        m_list->setCurrentRow(std::clamp(m_list->currentRow() + by, 0, last));
}

void FindBar::go()
{
    const int row = m_list ? m_list->currentRow() : -1;
    if (row < 0 || row >= int(m_hits.size()))
        return;
    const KeyHit hit = m_hits[std::size_t(row)];
    closeResults();
    emit m_context.goTo(hit.profile, hit.keyIdx);
}

void FindBar::end()
{
    m_field->clear();
    closeResults();
}

bool FindBar::isOpen() const
{
    return m_results && m_results->isVisible();
}

void FindBar::closeResults()
{
    if (m_results)
        m_results->hide();
}

bool FindBar::fieldKey(int key)
{
    constexpr int PageRows = 10;
    switch (key) {
    case Qt::Key_Up:
        move(-1);
        return true;
    case Qt::Key_Down:
        if (!isOpen())
            search();
        else
            move(1);
        return true;
    case Qt::Key_PageUp:
        move(-PageRows);
        return true;
    case Qt::Key_PageDown:
        move(PageRows);
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (!isOpen())
            search();
        go();
        return true;
    case Qt::Key_Escape:
        end();
        return true;
    default:
        return false;
    }
}

bool FindBar::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyPress && fieldKey(static_cast<QKeyEvent *>(event)->key()))
        return true;
    if (event->type() == QEvent::FocusOut)
        closeResults();
    return QWidget::eventFilter(watched, event);
}

void FindBar::resizeEvent(QResizeEvent *event)
{
    placeResults();
    QWidget::resizeEvent(event);
}
