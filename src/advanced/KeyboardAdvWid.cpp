#include "advanced/KeyboardAdvWid.h"

#include "advanced/AdvAssignWid.h"
#include "toolkit/PanelStyle.h"
#include "vocabulary/KeyCategories.h"

#include "ui_KeyboardAdvUi.h"

#include <QScrollBar>

namespace {

QFrame *makeSeparator(QWidget *parent)
{
    auto *const line = new QFrame(parent);
    line->setFrameShape(QFrame::HLine);
    line->setFrameShadow(QFrame::Sunken);
    line->setStyleSheet(QStringLiteral("background:rgb(127,128,132);"));
    line->setFixedHeight(1);
    return line;
}

} // namespace

KeyboardAdvWid::KeyboardAdvWid(QWidget *parent) : QWidget(parent)
{
    Ui::KeyboardAdvUi ui;
    ui.setupUi(this);
    ui.scrollArea->verticalScrollBar()->setStyleSheet(scrollBarSheet());
    ui.scrollArea->horizontalScrollBar()->setStyleSheet(scrollBarSheet());
    ui.verticalLayout_3->setAlignment(Qt::AlignTop);
    for (const KeyCategory &category : KeyCategories()) {
        if (ui.m_layout->count() > 0)
            ui.m_layout->addWidget(makeSeparator(ui.scrollAreaWidgetContents));
        auto *const list =
            new AdvAssignWid(tr(category.title), category.codes, ui.scrollAreaWidgetContents);
        connect(this, &KeyboardAdvWid::sigSearch, list, &AdvAssignWid::slotSearch);
        connect(this, &KeyboardAdvWid::sigVantrixKeySelected, list,
                &AdvAssignWid::slotVantrixKeySelected);
        connect(list, &AdvAssignWid::sigKeyChanged, this, &KeyboardAdvWid::sigKeyChanged);
        ui.m_layout->addWidget(list);
    }
}
