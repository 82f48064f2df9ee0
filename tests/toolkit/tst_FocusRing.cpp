#include "support/Gestures.h"
#include "support/TestMain.h"
#include "toolkit/FocusRing.h"

#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>

class tst_FocusRing : public QObject
{
    Q_OBJECT

private slots:
    void appearsWithTheKeyboard();
    void ringsButtonsOnly();
    void followsItsButton();
    void isCutByAScrolledList();
    void letsClicksThrough();
    void survivesItsButton();
};

namespace {

/// Two buttons and a field below one another.
struct Window : QWidget
{
    Window()
    {
        auto *const rows = new QVBoxLayout(this);
        for (QWidget *row : {static_cast<QWidget *>(first), static_cast<QWidget *>(second),
                             static_cast<QWidget *>(field)})
            rows->addWidget(row);
        resize(200, 200);
        show();
        activateWindow();
        QTRY_VERIFY(isActiveWindow());
    }

    QPushButton *first = new QPushButton("first", this);
    QPushButton *second = new QPushButton("second", this);
    QLineEdit *field = new QLineEdit(this);
    FocusRing *ring = new FocusRing(this);
};

} // namespace

void tst_FocusRing::appearsWithTheKeyboard()
{
    Window window;
    window.first->setFocus(Qt::MouseFocusReason);
    QVERIFY(!window.ring->isVisible());
    pressKey(window.first, Qt::Key_Tab);
    QVERIFY(window.second->hasFocus());
    QVERIFY(window.ring->isVisible());
    QCOMPARE(window.ring->geometry(), window.second->geometry());
}

void tst_FocusRing::ringsButtonsOnly()
{
    Window window;
    window.second->setFocus();
    pressKey(window.second, Qt::Key_Tab);
    QVERIFY(window.field->hasFocus());
    QVERIFY(!window.ring->isVisible());
}

void tst_FocusRing::followsItsButton()
{
    Window window;
    window.first->setFocus();
    pressKey(window.first, Qt::Key_Tab);
    window.resize(300, 260);
    QCoreApplication::processEvents();
    QCOMPARE(window.ring->geometry(), window.second->geometry());
    window.second->hide();
    QCoreApplication::processEvents();
    QVERIFY(!window.second->isVisible());
    QVERIFY(window.ring->isHidden() || window.ring->geometry() != window.second->geometry());
}

void tst_FocusRing::isCutByAScrolledList()
{
    QWidget root;
    auto *const area = new QScrollArea(&root);
    auto *const list = new QWidget;
    list->resize(100, 1000);
    auto *const other = new QPushButton("other", list);
    other->setGeometry(0, 300, 80, 30);
    auto *const button = new QPushButton("button", list);
    button->setGeometry(0, 10, 80, 30);
    area->setWidget(list);
    area->setGeometry(20, 20, 150, 100);
    auto *const ring = new FocusRing(&root);
    root.resize(200, 200);
    root.show();
    root.activateWindow();
    QTRY_VERIFY(root.isActiveWindow());
    other->setFocus();
    pressKey(other, Qt::Key_Tab);
    QVERIFY(button->hasFocus());
    area->verticalScrollBar()->setValue(25);
    QCOMPARE(ring->height(), 15);
    area->verticalScrollBar()->setValue(200);
    QVERIFY(!ring->isVisible());
}

void tst_FocusRing::letsClicksThrough()
{
    Window window;
    window.second->setFocus();
    pressKey(window.second, Qt::Key_Backtab);
    QVERIFY(window.ring->isVisible());
    QCOMPARE(window.childAt(window.first->geometry().center()), window.first);
}

void tst_FocusRing::survivesItsButton()
{
    Window window;
    window.first->setFocus();
    pressKey(window.first, Qt::Key_Tab);
    delete window.second;
    QCoreApplication::processEvents();
    window.first->setFocus();
    QVERIFY(window.first->hasFocus());
}

VANTRIX_TEST_MAIN(tst_FocusRing)
#include "tst_FocusRing.moc"
