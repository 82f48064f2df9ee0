#include "interfaces/TopWid.h"
#include "support/TestMain.h"

class tst_TopWid : public QObject
{
    Q_OBJECT

private slots:
    void risesOnEveryShow();
    void letsThePointerThrough();
};

void tst_TopWid::risesOnEveryShow()
{
    QWidget window;
    window.resize(100, 100);
    TopWid top(&window);
    top.setGeometry(0, 0, 50, 50);
    top.hide();
    window.show();
    for (int i = 0; i < 2; ++i) {
        auto *cover = new QWidget(&window);
        cover->setGeometry(0, 0, 50, 50);
        cover->show();
        top.hide();
        top.show();
        QCOMPARE(window.children().last(), static_cast<QObject *>(&top));
    }
}

void tst_TopWid::letsThePointerThrough()
{
    QWidget window;
    window.resize(100, 100);
    QWidget below(&window);
    below.setGeometry(0, 0, 50, 50);
    TopWid top(&window);
    top.setGeometry(0, 0, 50, 50);
    window.show();
    QCOMPARE(window.childAt(10, 10), &below);
}

VANTRIX_TEST_MAIN(tst_TopWid)
#include "tst_TopWid.moc"
