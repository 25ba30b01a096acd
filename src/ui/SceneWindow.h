#pragma once

#include <QPointer>
#include <QWidget>

#include <functional>

class LanguageManager;
class QVBoxLayout;

// A window of one scene ("settings", "about"): made once and reused, titled by the text of
// a key in the current language, as large as its content and no larger or smaller, centred
// on the screen the first time it shows. Its content (the root) is made when the window
// shows without one, made anew by rebuild(), and dropped when the user closes the window,
// so it starts afresh each time it opens.
class SceneWindow : public QWidget {
    Q_OBJECT
public:
    using RootFactory = std::function<QWidget *()>;

    SceneWindow(const QString &sceneId, const QString &titleKey, LanguageManager &language,
                RootFactory makeRoot, QWidget *parent = nullptr);

    QString sceneId() const { return objectName(); }
    QWidget *root() const { return m_root; }
    // Replaces the root with a new one, if the window has one.
    void rebuild();

    void setVisible(bool visible) override;

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    void setRoot(QWidget *root);
    void updateSceneTitle();

    QString m_titleKey;
    LanguageManager &m_language;
    RootFactory m_makeRoot;
    QVBoxLayout *m_layout = nullptr;
    QPointer<QWidget> m_root;
    bool m_placed = false;
};
