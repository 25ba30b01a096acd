#pragma once

#include <QWidget>

class QPlainTextEdit;

// A plain text box in a rounded outline with a soft shadow. The placeholder lies over its
// top-left corner while it is empty.
class FeedbackTextBox : public QWidget {
    Q_OBJECT
public:
    explicit FeedbackTextBox(QWidget *parent = nullptr);

    QPlainTextEdit *edit() const { return m_edit; }

protected:
    void paintEvent(QPaintEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void applyColours();

    QPlainTextEdit *m_edit;
};
