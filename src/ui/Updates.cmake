# The update sheet and the windows of the program's own updater.
target_sources(vandorel_ui PRIVATE
  InlineMarkdown.h InlineMarkdown.cpp
  UpdateAvailableView.h UpdateAvailableView.cpp
  UpdateDialogPresenter.h UpdateDialogPresenter.cpp
)
