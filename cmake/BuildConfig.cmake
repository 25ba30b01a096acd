# The application's "property list": everything fixed at build time lands in one
# generated header. Builds meant to run on a developer's or CI's machine keep every
# outside host on loopback (or empty); only the release preset names real hosts.
set(VANDOREL_APP_ID "io.kestrane.vandorel" CACHE STRING "Application id (desktop file id, lock name)")
set(VANDOREL_VERSION "${PROJECT_VERSION}" CACHE STRING "Short version string")
set(VANDOREL_BUILD_NUMBER "1" CACHE STRING "Build number")
# The day this version was released; metadata and the package's change log carry it.
set(VANDOREL_RELEASE_DATE "2026-11-23")
set(VANDOREL_COPYRIGHT_HOLDER "Kestrane")
set(VANDOREL_PACKAGE_MAINTAINER "Kestrane <vandorel@kestrane.io>" CACHE STRING
  "Maintainer named by the Debian package and its change log")
# Written into the desktop metadata and the package only; the program never contacts it.
set(VANDOREL_HOMEPAGE "https://vandorel.kestrane.io")
set(VANDOREL_WEB_HOST "http://127.0.0.1:8765" CACHE STRING "Product web host (feed, feedback)")
set(VANDOREL_FEED_URL "${VANDOREL_WEB_HOST}/app/Vandorel/appcast.xml" CACHE STRING "Appcast feed URL")
set(VANDOREL_ANALYTICS_US_HOST "http://127.0.0.1:8766" CACHE STRING "Analytics ingestion base, US region")
set(VANDOREL_ANALYTICS_EU_HOST "http://127.0.0.1:8766" CACHE STRING "Analytics ingestion base, EU region")
set(VANDOREL_FEEDBACK_API_KEY "" CACHE STRING "Key sent as X-API-Key with feedback")
set(VANDOREL_WEBSITE_URL "${VANDOREL_WEB_HOST}" CACHE STRING "Product web site (about window)")
set(VANDOREL_CONTACT_EMAIL "" CACHE STRING "Contact mailbox (about window); empty for none")
set(VANDOREL_DONATION_URL "" CACHE STRING "Donation page (general page, about window); empty for none")
option(VANDOREL_RELEASE "A build for distribution (the release preset)" OFF)
if(VANDOREL_RELEASE AND VANDOREL_FEEDBACK_API_KEY STREQUAL "")
  message(WARNING "VANDOREL_FEEDBACK_API_KEY is not set: this release build can't send feedback. "
    "The key is no part of the source; export it before configuring: "
    "VANDOREL_FEEDBACK_API_KEY=... cmake --preset release")
endif()
set(VANDOREL_DEBUG_BUILD OFF CACHE BOOL "Debug build: short analytics flush interval")

set(VANDOREL_GENERATED_DIR "${CMAKE_BINARY_DIR}/generated")
if(VANDOREL_DEBUG_BUILD)
  set(VANDOREL_DEBUG_BUILD_CXX true)
else()
  set(VANDOREL_DEBUG_BUILD_CXX false)
endif()
configure_file(${CMAKE_SOURCE_DIR}/cmake/BuildConfig.h.in ${VANDOREL_GENERATED_DIR}/BuildConfig.h @ONLY)
