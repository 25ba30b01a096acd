#include "ui/ProductHeader.h"

#include "core/i18n/LanguageManager.h"
#include "core/support/AppInfo.h"
#include "ui/widgets/SymbolLabel.h"

#include <QLabel>
#include <QVBoxLayout>

namespace {
const QColor symbolBlue(0x00, 0x7A, 0xFF);
}

ProductHeader::ProductHeader(LanguageManager &language, int symbolSize, TextStyle::Style nameStyle,
                             QWidget *parent)
    : QWidget(parent), m_language(language), m_version(new QLabel)
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(4);
    auto *symbol = new SymbolLabel(QStringLiteral("shield.checkered"), symbolSize);
    symbol->setColour(symbolBlue);
    layout->addWidget(symbol, 0, Qt::AlignHCenter);
    auto *name = new QLabel(QStringLiteral("Vandorel"));
    name->setAlignment(Qt::AlignHCenter);
    TextStyle::apply(name, nameStyle);
    layout->addWidget(name);
    m_version->setAlignment(Qt::AlignHCenter);
    TextStyle::apply(m_version, TextStyle::subheadline);
    TextStyle::makeSecondary(m_version);
    layout->addWidget(m_version);

    connect(&m_language, &LanguageManager::currentLanguageChanged, this,
            &ProductHeader::retranslate);
    connect(&m_language, &LanguageManager::bundleChanged, this, &ProductHeader::retranslate);
    retranslate();
}

void ProductHeader::retranslate()
{
    m_version->setText(m_language.localizedFormat(QStringLiteral("about_version"),
                                                  {AppInfo::appVersion(), AppInfo::buildNumber()}));
}
