#include "application/BranchTitle.h"

#include "vocabulary/Common.h"

#include <QPushButton>
#include <QScrollArea>

namespace {

constexpr int MostShown = 400;

} // namespace

QString shownPart(const QString &text)
{
    return text.size() > MostShown ? text.left(MostShown - 1) + QChar(0x2026) : text;
}

void setUpTitle(QPushButton *title, QScrollArea *area, const QString &text)
{
    // A long title is cut, it does not make the page wider.
    title->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    title->setText(Common::ButtonText(shownPart(text)));
    // Enter in a dialog's line of text must not reach it.
    title->setAutoDefault(false);
    area->hide();
}

void toggleArea(QScrollArea *area)
{
    area->setVisible(area->isHidden());
}
