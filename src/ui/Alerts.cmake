# The message boxes of the program's modal prompts.
target_sources(vandorel_ui PRIVATE
  MessageBoxPrompter.h MessageBoxPrompter.cpp
)
