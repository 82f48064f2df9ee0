#pragma once

#include <QWidget>

class ApplicationAdvWid : public QWidget
{
    Q_OBJECT

public:
    explicit ApplicationAdvWid(QWidget *parent = nullptr);

signals:
    void sigAppHotKeyChanged(QString strHotKey, QString strKeyName);
    void sigVantrixKeySelected();
    void sigSearch(QString strText);
};
