# The freedesktop handler database (desktop entries, mimeapps.list, mimeinfo.cache).
target_sources(vandorel_platform PRIVATE
  ${CMAKE_CURRENT_LIST_DIR}/AppStreamVersion.cpp
  ${CMAKE_CURRENT_LIST_DIR}/DesktopEntry.cpp
  ${CMAKE_CURRENT_LIST_DIR}/DesktopFileLocator.cpp
  ${CMAKE_CURRENT_LIST_DIR}/FreedesktopHandlerDatabase.cpp
  ${CMAKE_CURRENT_LIST_DIR}/KeyFileScanner.cpp
  ${CMAKE_CURRENT_LIST_DIR}/MimeAppsList.cpp
  ${CMAKE_CURRENT_LIST_DIR}/MimeAppsListEditor.cpp
  ${CMAKE_CURRENT_LIST_DIR}/MimeAppsListWriter.cpp
  ${CMAKE_CURRENT_LIST_DIR}/MimeAssociations.cpp
  ${CMAKE_CURRENT_LIST_DIR}/XdgDirectories.cpp
)
