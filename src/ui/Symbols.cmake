# The symbol table: each symbol name the interface uses, and the picture that stands
# for it. Shields are the program's own art (resources/icons); the rest come from
# Debian's bootstrap-icons, embedded at build time (nothing of them is in the repo).
set(VANDOREL_BOOTSTRAP_ICONS "/usr/share/bootstrap-icons/svg" CACHE PATH "bootstrap-icons SVG folder")

set(vandorel_symbol_map
  "arrow.clockwise=arrow-clockwise"
  "arrow.counterclockwise=arrow-counterclockwise"
  "arrow.down.circle=arrow-down-circle"
  "arrow.down.circle.fill=arrow-down-circle-fill"
  "arrow.up.right=arrow-up-right"
  "bell.fill=bell-fill"
  "bell.slash=bell-slash"
  "bolt=lightning"
  "bubble.left.and.bubble.right=chat-left-text"
  "chart.bar=bar-chart"
  "chart.bar.fill=bar-chart-fill"
  "chart.bar.xaxis=bar-chart-line"
  "checkmark.circle.fill=check-circle-fill"
  "clock.fill=clock-fill"
  "cup.and.saucer.fill=cup-hot-fill"
  "doc.on.doc=files"
  "doc.text.magnifyingglass=file-earmark-text"
  "envelope=envelope"
  "eye=eye"
  "gear=gear"
  "gearshape=gear"
  "globe=globe"
  "info.circle=info-circle"
  "list.bullet.rectangle=list-ul"
  "moon.zzz=moon-stars"
  "moon.zzz.fill=moon-stars-fill"
  "mug.fill=cup-fill"
  "power=power"
  "shield.checkered=shield-shaded"
  "shield.fill=shield-fill"
  "square.and.arrow.up=box-arrow-up"
  "trash=trash"
)
set(vandorel_own_symbols
  shield checkmark.shield.fill xmark.shield.fill exclamationmark.shield.fill exclamationmark.shield)

set(vandorel_symbol_files)
foreach(entry IN LISTS vandorel_symbol_map)
  string(REPLACE "=" ";" pair "${entry}")
  list(GET pair 0 symbol)
  list(GET pair 1 file)
  set(source "${VANDOREL_BOOTSTRAP_ICONS}/${file}.svg")
  if(NOT EXISTS "${source}")
    message(FATAL_ERROR "Symbol ${symbol}: ${source} is missing (apt-get install bootstrap-icons)")
  endif()
  set(copy "${CMAKE_CURRENT_BINARY_DIR}/symbols/${symbol}.svg")
  configure_file("${source}" "${copy}" COPYONLY)
  list(APPEND vandorel_symbol_files "${copy}")
endforeach()
foreach(symbol IN LISTS vandorel_own_symbols)
  set(copy "${CMAKE_CURRENT_BINARY_DIR}/symbols/${symbol}.svg")
  configure_file("${PROJECT_SOURCE_DIR}/resources/icons/${symbol}.svg" "${copy}" COPYONLY)
  list(APPEND vandorel_symbol_files "${copy}")
endforeach()

qt_add_resources(vandorel_ui "symbols"
  PREFIX "/"
  BASE "${CMAKE_CURRENT_BINARY_DIR}"
  FILES ${vandorel_symbol_files})
