# The about window's content.
target_sources(vandorel_ui PRIVATE
  about/AboutView.h about/AboutView.cpp
)
