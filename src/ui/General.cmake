# The general page.
target_sources(vandorel_ui PRIVATE
  general/BuyMeCoffeeButton.h general/BuyMeCoffeeButton.cpp
  general/FeatureRow.h general/FeatureRow.cpp
  general/GeneralSettingsView.h general/GeneralSettingsView.cpp
)
