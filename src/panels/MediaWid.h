#pragma once

#include "panels/FunctionWid.h"

#include <memory>

namespace Ui {
class MediaUi;
}

/// The panel of the media functions: a row of picture buttons, whose names stand in their tool
/// tips.
class MediaWid : public FunctionWid
{
    Q_OBJECT

public:
    explicit MediaWid(QWidget *parent = nullptr);
    ~MediaWid() override;

signals:
    /// The user clicked an entry: `type` 0, `code` its device code, 255 when it was unchecked.
    void sigMediaChanged(vantrix_key_mapping key);

private slots:
    void slotMediaKeyClicked(QAbstractButton *button);

private:
    std::unique_ptr<Ui::MediaUi> m_ui;
};
