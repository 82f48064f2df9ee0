#pragma once

#include "core/records.h"

#include <QWidget>

#include <map>
#include <memory>

class ControllerKeyWid;
namespace Ui {
class GameControllerAdvUi;
}

/// The functions of a game controller around its picture, each with all pad keys of the profile
/// that hold it. The key being edited holds at most one function; other keys may share one.
///
/// A click changes what is shown and is reported; the store is only read, each time `setProfile`
/// is called, so that picks which nobody applied are gone then. Interface thread only.
class GameControllerAdvWid : public QWidget
{
    Q_OBJECT

public:
    explicit GameControllerAdvWid(QWidget *parent = nullptr);
    ~GameControllerAdvWid() override;

    /// Shows the keys of a profile, as the store has them now. If the store cannot tell them, the
    /// rows show what they showed.
    void setProfile(int iOwner, int iProfile);

public slots:
    /// Makes the functions stand out whose names start with `strText`, and hides nothing.
    void slotSearch(QString strText);

signals:
    /// A click on a row: a record of type 2 whose `altCode` is the row's code, or the record that
    /// clears the key when it held that function.
    void sigGameControllerChanged(vantrix_key_mapping key);

protected:
    bool event(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private slots:
    void slotDelCurrKeyToGamepad(ushort iKeyId);

private:
    /// The picture is never narrower than the rows on it, which begin at a fixed part of it.
    void reservePicture();
    void placeCentreRows();

    const std::unique_ptr<Ui::GameControllerAdvUi> m_ui;
    std::map<ushort, ControllerKeyWid *> m_mKeys;
};
