# The tray icon, its panel and its menu.
target_sources(vandorel_ui PRIVATE
  Mnemonic.h
  Shortcuts.h
  panel/MenuBarView.h panel/MenuBarView.cpp
  panel/PanelMenu.h panel/PanelMenu.cpp
  panel/PanelPopup.h panel/PanelPopup.cpp
  panel/PanelRow.h panel/PanelRow.cpp
  panel/StatusRowState.h panel/StatusRowState.cpp
  tray/ShieldIcon.h tray/ShieldIcon.cpp
  tray/TrayIcon.h tray/TrayIcon.cpp
)
