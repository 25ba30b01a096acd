# The Debian package, made by CPack from the install rules: `cpack --preset release`
# (or `cmake --workflow --preset release`); CI packs its own loopback build.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME vandorel)
set(CPACK_PACKAGE_VERSION "${PROJECT_VERSION}")
set(CPACK_PACKAGE_VENDOR "${VANDOREL_COPYRIGHT_HOLDER}")
set(CPACK_PACKAGE_HOMEPAGE_URL "${VANDOREL_HOMEPAGE}")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "keeps your chosen default browser and mail client in place")
set(CPACK_PACKAGE_DESCRIPTION [=[
Other programs like to make themselves the default web browser or mail
client when they are installed or updated. Vandorel watches both roles from
the system tray, tells you when one is taken over, counts and logs each
change, and changes the default back on your word or leaves it be for a
while. It checks at an interval, at login, after sleep and on unlock, and
speaks ten languages.
]=])
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_MAINTAINER "${VANDOREL_PACKAGE_MAINTAINER}")
set(CPACK_DEBIAN_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# GNOME Shell shows tray icons only through this extension.
set(CPACK_DEBIAN_PACKAGE_SUGGESTS gnome-shell-extension-appindicator)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)

include(CPack)
