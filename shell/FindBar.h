#pragma once

#include "shell/KeyFinder.h"
#include "shell/ShellContext.h"

#include <QPointer>
#include <QWidget>

class PadView;
class QFrame;
class QLabel;
class QLineEdit;
class QListWidget;

/// A field to find keys by what they do. What is found stands in a list under the field, the keys
/// of the chosen profile light up on a picture of the pad beside it, and all of them are told by
/// the context's `keysMarked`. Up and Down choose, Enter goes to the key, Escape ends.
class FindBar : public QWidget
{
    Q_OBJECT

public:
    /// Keys that the list shows; how many more there are is said below it.
    static constexpr int ListLimit = 200;

    explicit FindBar(ShellContext &context, QWidget *parent = nullptr);
    ~FindBar() override;

    /// Focus to the field, its text selected.
    void begin();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void makeResults();
    void search();
    void mark();
    void forget();
    void showHits();
    void placeResults();
    void showProfileOf(int row);
    void move(int by);
    void go();
    bool isOpen() const;
    void closeResults();
    void end();
    bool fieldKey(int key);

    ShellContext &m_context;
    KeyFinder m_finder;
    std::vector<KeyHit> m_hits;
    bool m_isRead = false;
    QLineEdit *m_field = nullptr;
    QPointer<QFrame> m_results;
    QListWidget *m_list = nullptr;
    QLabel *m_count = nullptr;
    QLabel *m_profile = nullptr;
    PadView *m_pad = nullptr;
};
