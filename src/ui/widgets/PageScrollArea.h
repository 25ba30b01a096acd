#pragma once

#include <QScrollArea>

// The scroll area of a settings page: no frame, the content as wide as the view, scrolling
// only vertically.
class PageScrollArea : public QScrollArea {
    Q_OBJECT
public:
    explicit PageScrollArea(QWidget *content, QWidget *parent = nullptr);

    // Fills `page` with a scroll area over `content`.
    static PageScrollArea *fill(QWidget *page, QWidget *content);
};
