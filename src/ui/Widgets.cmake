# Small widgets the pages share: a switch, a busy spinner, a symbol, a titled box with a
# symbol, a relative time.
target_sources(vandorel_ui PRIVATE
  widgets/BusySpinner.h widgets/BusySpinner.cpp
  widgets/PageScrollArea.h widgets/PageScrollArea.cpp
  widgets/ProminentButton.h widgets/ProminentButton.cpp
  widgets/RelativeTimeLabel.h widgets/RelativeTimeLabel.cpp
  widgets/SymbolGroupBox.h widgets/SymbolGroupBox.cpp
  widgets/SymbolLabel.h widgets/SymbolLabel.cpp
  widgets/ToggleSwitch.h widgets/ToggleSwitch.cpp
)
