#pragma once

#include "core/records.h"
#include "interfaces/ButtonGroupEx.h"
#include "support/Gestures.h"

#include <QAbstractButton>
#include <QLabel>
#include <QSignalSpy>

/// What holds for each panel of plain device codes: codes and texts in order, what a click sends,
/// what a selected key checks.
template <typename Panel, typename Signal>
class FunctionPanelTest
{
public:
    FunctionPanelTest(Signal signal, std::vector<std::pair<int, QString>> functions)
        : m_signal(signal), m_functions(std::move(functions))
    {
        registerRecordTypes();
    }

    void listsItsFunctions()
    {
        const Panel panel;
        const auto buttons = group(panel)->buttons();
        QCOMPARE(std::size_t(buttons.size()), m_functions.size());
        for (int i = 0; i < buttons.size(); ++i) {
            const auto &[code, text] = m_functions[std::size_t(i)];
            QCOMPARE(group(panel)->id(buttons[i]), code);
            QCOMPARE(nameOf(buttons[i]), text);
            QVERIFY(buttons[i]->isCheckable());
        }
    }

    void clickSpaceAndSecondClick()
    {
        Panel panel;
        panel.show();
        QSignalSpy spy(&panel, m_signal);
        for (const auto &[code, text] : m_functions) {
            QAbstractButton *const button = group(panel)->button(code);
            clickOn(button);
            QCOMPARE(takeRecord(spy), plainKey(ushort(code)));
            QCOMPARE(group(panel)->checkedButton(), button);
            clickOn(button);
            QCOMPARE(takeRecord(spy), clearedKey());
            QVERIFY(!group(panel)->checkedButton());
            pressKey(button, Qt::Key_Space);
            QCOMPARE(takeRecord(spy), plainKey(ushort(code)));
        }
        QCOMPARE(spy.count(), 0);
    }

    /// Every code there is, and every kind of record.
    void showsASelectedKey()
    {
        Panel panel;
        QSignalSpy spy(&panel, m_signal);
        for (int code = 0; code <= 3100; ++code) {
            panel.slotVantrixKeySelected(plainKey(ushort(code)));
            QCOMPARE(checkedCode(panel), isListed(code) ? code : -1);
        }
        const int first = m_functions.front().first;
        panel.slotVantrixKeySelected(plainKey(ushort(first)));
        for (const int type : {1, 2, 3}) {
            vantrix_key_mapping other = plainKey(ushort(m_functions.back().first));
            other.type = quint8(type);
            other.altCode = ushort(m_functions.back().first);
            panel.slotVantrixKeySelected(other);
            QCOMPARE(checkedCode(panel), first);
        }
        panel.clearChecked();
        QCOMPARE(checkedCode(panel), -1);
        QCOMPARE(spy.count(), 0);
    }

    static ButtonGroupEx *group(const Panel &panel)
    {
        return panel.template findChild<ButtonGroupEx *>();
    }

private:
    /// Picture buttons tell their name to assistive technology and in their tool tip.
    static QString nameOf(const QAbstractButton *button)
    {
        if (!button->text().isEmpty())
            return button->text();
        return button->toolTip() == button->accessibleName() ? button->accessibleName() : QString();
    }

    static int checkedCode(const Panel &panel)
    {
        QAbstractButton *const button = group(panel)->checkedButton();
        return button ? group(panel)->id(button) : -1;
    }

    static vantrix_key_mapping takeRecord(QSignalSpy &spy)
    {
        return spy.isEmpty() ? vantrix_key_mapping()
                             : spy.takeFirst().at(0).template value<vantrix_key_mapping>();
    }

    bool isListed(int code) const
    {
        for (const auto &function : m_functions) {
            if (function.first == code)
                return true;
        }
        return false;
    }

    Signal m_signal;
    std::vector<std::pair<int, QString>> m_functions;
};

/// Fails unless every button lies inside the panel and beside the others.
inline void compareButtonsLieApart(const QWidget &panel)
{
    QList<QRect> rects;
    const auto buttons = panel.findChildren<QAbstractButton *>();
    for (const QAbstractButton *button : buttons) {
        if (!button->isVisible())
            continue;
        const QRect rect(button->mapTo(const_cast<QWidget *>(&panel), QPoint()), button->size());
        QVERIFY2(panel.rect().contains(rect), qPrintable(button->text()));
        for (const QRect &other : qAsConst(rects))
            QVERIFY2(!rect.intersects(other), qPrintable(button->text()));
        rects << rect;
    }
}
