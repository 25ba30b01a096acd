# The application's "property list": everything fixed at build time lands in one
# generated header. Builds meant to run on a developer's or CI's machine keep every
# outside host on loopback (or empty); only the release preset names real hosts.
set(VANDOREL_APP_ID "io.kestrane.vandorel" CACHE STRING "Application id (desktop file id, lock name)")
set(VANDOREL_VERSION "${PROJECT_VERSION}" CACHE STRING "Short version string")
set(VANDOREL_BUILD_NUMBER "1" CACHE STRING "Build number")
set(VANDOREL_WEB_HOST "http://127.0.0.1:8765" CACHE STRING "Product web host (feed, feedback)")
set(VANDOREL_FEED_URL "${VANDOREL_WEB_HOST}/app/Vandorel/appcast.xml" CACHE STRING "Appcast feed URL")
set(VANDOREL_ANALYTICS_US_HOST "http://127.0.0.1:8766" CACHE STRING "Analytics ingestion base, US region")
set(VANDOREL_ANALYTICS_EU_HOST "http://127.0.0.1:8766" CACHE STRING "Analytics ingestion base, EU region")
set(VANDOREL_FEEDBACK_API_KEY "" CACHE STRING "Key sent as X-API-Key with feedback")
set(VANDOREL_DEBUG_BUILD OFF CACHE BOOL "Debug build: short analytics flush interval")

set(VANDOREL_GENERATED_DIR "${CMAKE_BINARY_DIR}/generated")
if(VANDOREL_DEBUG_BUILD)
  set(VANDOREL_DEBUG_BUILD_CXX true)
else()
  set(VANDOREL_DEBUG_BUILD_CXX false)
endif()
configure_file(${CMAKE_SOURCE_DIR}/cmake/BuildConfig.h.in ${VANDOREL_GENERATED_DIR}/BuildConfig.h @ONLY)
