#include "ui/general/FeatureRow.h"

#include "ui/LocalizedText.h"
#include "ui/widgets/SymbolLabel.h"

#include <QHBoxLayout>

namespace {
const QColor symbolBlue(0x00, 0x7A, 0xFF);
constexpr int symbolFrame = 20;
constexpr int symbolSize = 15;
} // namespace

FeatureRow::FeatureRow(LanguageManager &language, const QString &icon, const QString &textKey,
                       QWidget *parent)
    : QWidget(parent)
{
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(12);
    auto *symbol = new SymbolLabel(icon, symbolSize);
    symbol->setColour(symbolBlue);
    symbol->setFixedWidth(symbolFrame);
    symbol->setAlignment(Qt::AlignCenter);
    layout->addWidget(symbol, 0, Qt::AlignTop);
    auto *text = new LocalizedText(textKey, language);
    text->setWordWrap(true);
    layout->addWidget(text, 1);
}
