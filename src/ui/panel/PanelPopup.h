#pragma once

#include <QFrame>
#include <QPointer>

class QVBoxLayout;

// The frameless popup that holds the tray panel. It opens under the tray icon, or above it
// when the tray is at the bottom of the screen, or at the pointer when the tray does not
// say where its icon is; always inside the screen's available area. A click outside closes
// it, and so does a second click on the icon; nothing else does.
class PanelPopup : public QFrame {
    Q_OBJECT
public:
    explicit PanelPopup(QWidget *parent = nullptr);

    QWidget *root() const { return m_root; }
    // Puts `root` in place of the current content.
    void setRoot(QWidget *root);

    // Opens at the icon, or closes when open.
    void toggle(const QRect &iconGeometry);

    // The top-left corner of a panel of `size` for an icon at `icon` (empty: unknown) and
    // the pointer at `pointer`, on a screen whose free area is `available`.
    static QPoint placement(const QSize &size, const QRect &icon, const QPoint &pointer,
                            const QRect &available);

protected:
    void mousePressEvent(QMouseEvent *event) override;

private:
    QVBoxLayout *m_layout;
    QPointer<QWidget> m_root;
    QRect m_iconGeometry;
};
