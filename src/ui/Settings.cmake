# The settings window's frame: the tabs and the view that shows the page of one.
target_sources(vandorel_ui PRIVATE
  ViewEnvironment.h
  settings/SettingsTab.h settings/SettingsTab.cpp
  settings/SettingsTabNotifier.h settings/SettingsTabNotifier.cpp
  settings/SettingsView.h settings/SettingsView.cpp
  settings/TabButton.h settings/TabButton.cpp
)
# Routing: how a wish for a page or a window reaches it.
target_sources(vandorel_ui PRIVATE
  SceneWindow.h SceneWindow.cpp
  WidgetSwap.h
  WindowList.h WindowList.cpp
  WindowRouter.h WindowRouter.cpp
  WindowTitleUpdater.h WindowTitleUpdater.cpp
)
