# Wake and unlock over D-Bus (logind, the desktop's screen saver).
target_sources(vandorel_platform PRIVATE
  ${CMAKE_CURRENT_LIST_DIR}/FreedesktopSystemEvents.cpp
  ${CMAKE_CURRENT_LIST_DIR}/FreedesktopSystemEvents.h
)
