# The browser and mail settings pages: one page over a guard, with two profiles.
target_sources(vandorel_ui PRIVATE
  guard/BrowserSettingsView.h
  guard/EmailSettingsView.h
  guard/GuardPageProfile.h guard/GuardPageProfile.cpp
  guard/GuardSettingsView.h guard/GuardSettingsView.cpp
)
