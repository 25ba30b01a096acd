#pragma once

#include "ui/TextStyle.h"

#include <QWidget>

class LanguageManager;
class QLabel;

// The program's name plate, centred: the shield, "Vandorel" (the same in every language) and
// the version line, which follows the language.
class ProductHeader : public QWidget {
    Q_OBJECT
public:
    ProductHeader(LanguageManager &language, int symbolSize, TextStyle::Style nameStyle,
                  QWidget *parent = nullptr);

    QLabel *versionLine() const { return m_version; }

private:
    void retranslate();

    LanguageManager &m_language;
    QLabel *m_version;
};
