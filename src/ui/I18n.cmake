target_sources(vandorel_ui PRIVATE LocalizedText.cpp)
