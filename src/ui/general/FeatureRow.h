#pragma once

#include <QWidget>

class LanguageManager;

// One feature of the program: a blue symbol in a frame 20 wide, then the text of a key.
class FeatureRow : public QWidget {
    Q_OBJECT
public:
    FeatureRow(LanguageManager &language, const QString &icon, const QString &textKey,
               QWidget *parent = nullptr);
};
