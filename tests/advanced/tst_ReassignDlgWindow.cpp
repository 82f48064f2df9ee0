#include "DialogRig.h"
#include "support/TestMain.h"

class tst_ReassignDlgWindow : public DialogRig
{
    Q_OBJECT

private slots:
    void initTestCase() { registerRecordTypes(); }
    void init() { setUp(); }
    void cleanup() { tearDown(); }

    void upperKeysHaveNoModes();
    void dualActionHasNoSearch();
    void enterInTheSearchDoesNotApply();
    void enterOnAButtonPressesIt();
    void coversTheMainWindow_data();
    void coversTheMainWindow();
    void followsTheMainWindow();
    void searchIsLegible();
    void centresItsPanel_data();
    void centresItsPanel();
    void paintsTheVeil();
    void forgetsThePointer_data();
    void forgetsThePointer();
    void runsModally();
    void tabOrderFollowsReading();
    void destroyedWhileOpen();
    void destroyedByItsPick();
};

void tst_ReassignDlgWindow::upperKeysHaveNoModes()
{
    const QVector<int> keys = {23, 24, 27, 0};
    for (const int keyIdx : keys) {
        open(keyIdx, 0, plainKey(4), [this, keyIdx] {
            m_dialog->show();
            QCoreApplication::processEvents();
            for (int id = 0; id < 10; ++id)
                QCOMPARE(input(id)->isHidden(), keyIdx >= 24 && (id == 4 || id == 6));
            int bottom = input(3)->geometry().bottom();
            for (int id = 4; id < 10; ++id) {
                if (input(id)->isHidden())
                    continue;
                QCOMPARE(input(id)->geometry().top(), bottom + 2);
                bottom = input(id)->geometry().bottom();
            }
            m_dialog->hide();
        });
    }
}

void tst_ReassignDlgWindow::dualActionHasNoSearch()
{
    auto *const search = child<QLineEdit>(m_dialog.get(), "m_search");
    open(0, 0, plainKey(4), [&] {
        m_dialog->show();
        search->setText("lef");
    });
    open(0, 6, plainKey(4), [&] {
        m_dialog->show();
        QVERIFY(!search->isVisible());
        input(1)->click();
        QVERIFY(search->isVisible());
        QCOMPARE(search->text(), QString("lef"));
    });
}

void tst_ReassignDlgWindow::enterInTheSearchDoesNotApply()
{
    open(0, 0, plainKey(7), [this] {
        m_dialog->show();
        auto *const search = child<QLineEdit>(m_dialog.get(), "m_search");
        button("m_apply")->setDefault(true);
        search->setFocus();
        typeInto(search, "a");
        for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
            pressKey(search, key);
            pressKey(m_dialog.get(), key);
        }
        QVERIFY(m_dialog->isVisible());
        QCOMPARE(page(), 0);
        QCOMPARE(m_sent, QStringList());
    });
}

void tst_ReassignDlgWindow::enterOnAButtonPressesIt()
{
    open(0, 0, plainKey(7), [this] {
        m_dialog->show();
        button("m_apply")->setFocus();
        pressKey(button("m_apply"), Qt::Key_Return);
        QVERIFY(!m_dialog->isVisible());
    });
    QCOMPARE(m_sent, QStringList{"record 0 7 0 0"});
}

void tst_ReassignDlgWindow::coversTheMainWindow_data()
{
    QTest::addColumn<QRect>("window");
    QTest::newRow("784 x 808") << QRect(10, 20, 784, 808);
    QTest::newRow("1280 x 800") << QRect(12, 4, 1280, 800);
    QTest::newRow("937 x 603") << QRect(100, 50, 937, 603);
    QTest::newRow("1920 x 1080") << QRect(3, 3, 1920, 1080);
    QTest::newRow("small") << QRect(5, 5, 600, 400);
}

void tst_ReassignDlgWindow::coversTheMainWindow()
{
    QFETCH(QRect, window);
    m_main->windowHandle()->setGeometry(window);
    for (const int state : {0, 4, 6, 9}) {
        open(0, state, plainKey(4), [&] {
            m_dialog->show();
            QCoreApplication::processEvents();
            QCOMPARE(m_dialog->geometry(), window);
            m_dialog->hide();
        });
    }
}

void tst_ReassignDlgWindow::followsTheMainWindow()
{
    open(0, 0, plainKey(4), [this] {
        m_dialog->show();
        m_main->windowHandle()->setGeometry(70, 80, 1100, 720);
        QCoreApplication::processEvents();
        QCOMPARE(m_dialog->geometry(), QRect(70, 80, 1100, 720));
    });
    m_dialog->hide();
    m_main->windowHandle()->setGeometry(10, 20, 900, 700);
    QCoreApplication::processEvents();
    QCOMPARE(m_dialog->geometry(), QRect(70, 80, 1100, 720));
}

/// Dark on its light ground, whatever the application's palette.
void tst_ReassignDlgWindow::searchIsLegible()
{
    const QPalette before = QApplication::palette();
    QPalette dark = before;
    dark.setColor(QPalette::Text, Qt::white);
    dark.setColor(QPalette::PlaceholderText, Qt::white);
    QApplication::setPalette(dark);
    m_dialog = std::make_unique<ReassignDlg>(m_main.get());
    const QPalette palette = child<QLineEdit>(m_dialog.get(), "m_search")->palette();
    QApplication::setPalette(before);
    QCOMPARE(palette.color(QPalette::Text), QColor(Qt::black));
    QVERIFY(palette.color(QPalette::PlaceholderText).lightness() < 80);
}

void tst_ReassignDlgWindow::centresItsPanel_data()
{
    coversTheMainWindow_data();
}

void tst_ReassignDlgWindow::centresItsPanel()
{
    QFETCH(QRect, window);
    m_main->windowHandle()->setGeometry(window);
    open(0, 0, plainKey(4), [&] {
        m_dialog->show();
        QCoreApplication::processEvents();
        const auto *const top = child<QWidget>(m_dialog.get(), "top_widget");
        const auto *const left = child<QWidget>(m_dialog.get(), "left_widget");
        const auto *const right = child<QWidget>(m_dialog.get(), "right_widget");
        QCOMPARE(top->geometry().bottom() + 1, left->geometry().top());
        QCOMPARE(left->geometry().right() + 1, right->geometry().left());
        QCOMPARE(left->geometry().bottom(), right->geometry().bottom());
        QCOMPARE(top->geometry().left(), left->geometry().left());
        QCOMPARE(top->geometry().right(), right->geometry().right());
        const QRect panel = top->geometry() | right->geometry() | left->geometry();
        QVERIFY(m_dialog->rect().contains(panel));
        QVERIFY(qAbs(panel.left() - (m_dialog->width() - 1 - panel.right())) <= 1);
        QVERIFY(qAbs(panel.top() - (m_dialog->height() - 1 - panel.bottom())) <= 1);
        for (const char *name : {"m_apply", "m_cancel", "m_close"})
            QVERIFY(m_dialog->rect().contains(
                QRect(button(name)->mapTo(m_dialog.get(), QPoint()), button(name)->size())));
    });
}

void tst_ReassignDlgWindow::paintsTheVeil()
{
    open(0, 0, plainKey(4), [this] {
        m_dialog->setGeometry(0, 0, 1600, 1100);
        m_dialog->show();
        QImage image(m_dialog->size(), QImage::Format_ARGB32);
        image.fill(Qt::transparent);
        m_dialog->render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
        QCOMPARE(image.pixelColor(2, 2), QColor(0, 0, 0, 200));
    });
    QVERIFY(m_dialog->testAttribute(Qt::WA_TranslucentBackground));
}

void tst_ReassignDlgWindow::forgetsThePointer_data()
{
    QTest::addColumn<QString>("under");
    for (const char *name : {"m_apply", "m_cancel", "m_close", "m_createBtn"})
        QTest::newRow(name) << name;
}

void tst_ReassignDlgWindow::forgetsThePointer()
{
    QFETCH(QString, under);
    open(0, 3, plainKey(4), [&] {
        m_dialog->show();
        auto *const lit = child<QPushButton>(m_dialog.get(), under);
        QEnterEvent enter(QPointF(2, 2), QPointF(2, 2), QPointF(2, 2));
        QCoreApplication::sendEvent(lit, &enter);
        QVERIFY(lit->underMouse());
        lit->click();
        QVERIFY(!m_dialog->isVisible());
        QVERIFY(!lit->underMouse());
    });
}

void tst_ReassignDlgWindow::runsModally()
{
    const vantrix_key_mapping key = plainKey(4);
    QTimer::singleShot(0, this, [this] {
        QVERIFY(m_dialog->isVisible());
        QVERIFY(m_dialog->isModal());
        pressKey(m_dialog.get(), Qt::Key_Escape);
    });
    m_dialog->openFor(0, 0, &key);
    QVERIFY(!m_dialog->isVisible());
}

void tst_ReassignDlgWindow::tabOrderFollowsReading()
{
    open(0, 1, plainKey(496), [this] {
        m_dialog->show();
        m_dialog->activateWindow();
        QTRY_VERIFY(m_dialog->isActiveWindow());
        QCOMPARE(m_dialog->focusWidget(), input(1));
        const auto stopsOf = [this](Qt::Key key) {
            QStringList stops;
            button("m_close")->setFocus();
            do {
                const auto *const stop = m_dialog->focusWidget();
                const auto *const asButton = qobject_cast<const QPushButton *>(stop);
                stops << (stop->objectName().isEmpty() && asButton ? asButton->text()
                                                                   : stop->objectName());
                pressKey(m_dialog->focusWidget(), key);
            } while (m_dialog->focusWidget() != button("m_close") && stops.size() < 40);
            return stops;
        };
        const QStringList forward = {"m_close",    "input_1",  "m_search", "m_title",
                                     "LEFT CLICK", "m_cancel", "m_apply"};
        QCOMPARE(stopsOf(Qt::Key_Tab), forward);
        clickOn(input(3));
        m_dialog->addKeyAssignMacro("Jump");
        QCOMPARE(stopsOf(Qt::Key_Tab),
                 (QStringList{"m_close", "input_3", "m_search", "m_userBtn", "Jump", "m_createBtn",
                              "m_winBtn", "OPEN TASK MANAGER", "m_cancel", "m_apply"}));
    });
}

void tst_ReassignDlgWindow::destroyedWhileOpen()
{
    const vantrix_key_mapping key = plainKey(4);
    QTimer::singleShot(0, this, [this] { m_dialog.reset(); });
    m_dialog->openFor(0, 0, &key);
    QVERIFY(!m_dialog);
}

void tst_ReassignDlgWindow::destroyedByItsPick()
{
    connect(m_dialog.get(), &ReassignDlg::sigVantrixKeyAssigned, this,
            [this] { m_dialog.reset(); });
    const vantrix_key_mapping key = plainKey(4);
    QTimer::singleShot(0, this, [this] { button("m_apply")->click(); });
    m_dialog->openFor(0, 0, &key);
    QVERIFY(!m_dialog);
}

VANTRIX_TEST_MAIN(tst_ReassignDlgWindow)
#include "tst_ReassignDlgWindow.moc"
