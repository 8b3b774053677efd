#pragma once

#include <QWidget>

class AppModel;
class QLabel;
class QListWidget;

/// A plain window that shows the status line and the history.
class PlaceholderWindow : public QWidget
{
    Q_OBJECT

public:
    explicit PlaceholderWindow(AppModel &model);

private:
    void showItems();

    AppModel &m_model;
    QLabel *m_status;
    QListWidget *m_items;
};
