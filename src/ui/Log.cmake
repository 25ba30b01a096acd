# The change log page.
target_sources(vandorel_ui PRIVATE
  log/ChangeLogEntryRow.h log/ChangeLogEntryRow.cpp
  log/LogView.h log/LogView.cpp
)
