# The guards' change alerts.
target_sources(vandorel_ui PRIVATE
  MessageBoxAlertPresenter.h MessageBoxAlertPresenter.cpp
)
