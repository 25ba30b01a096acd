# The update sheet, and how the program's own updater shows it.
target_sources(vandorel_ui PRIVATE
  InlineMarkdown.h InlineMarkdown.cpp
  UpdateAvailableView.h UpdateAvailableView.cpp
  UpdateSheetDialogPresenter.h UpdateSheetDialogPresenter.cpp
)
