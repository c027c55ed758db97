# Settings that every target shares, and helpers to declare targets by folder.

add_library(kavor_options INTERFACE)
# One setting for all sources, also for those without optimisation: the parser's classes differ by it.
if(KAVOR_SANITIZE OR KAVOR_FUZZERS)
  target_compile_definitions(kavor_options INTERFACE SIMDJSON_DEVELOPMENT_CHECKS=1)
else()
  target_compile_definitions(kavor_options INTERFACE SIMDJSON_DEVELOPMENT_CHECKS=0)
endif()
target_compile_options(kavor_options INTERFACE -Wall -Wextra -Wshadow -Wnon-virtual-dtor)
if(CMAKE_CXX_COMPILER_ID STREQUAL GNU)
  # GCC 12 sees overlaps in std::string's own operator+, and values of empty optionals read, that are not there.
  target_compile_options(kavor_options INTERFACE -Wno-restrict -Wno-maybe-uninitialized)
endif()
if(KAVOR_WARNINGS_AS_ERRORS)
  target_compile_options(kavor_options INTERFACE -Werror)
endif()
if(KAVOR_SANITIZE)
  target_compile_options(kavor_options INTERFACE -fsanitize=${KAVOR_SANITIZE} -fno-omit-frame-pointer -g1)
  target_link_options(kavor_options INTERFACE -fsanitize=${KAVOR_SANITIZE})
  if(KAVOR_SANITIZE STREQUAL thread AND CMAKE_CXX_COMPILER_ID STREQUAL GNU)
    target_compile_options(kavor_options INTERFACE -Wno-tsan) # fences in the library's headers, which it does not know
  endif()
endif()

# The C++ sources of the given folders (not of their subfolders).
function(kavor_sources OUT)
  set(found)
  foreach(folder ${ARGN})
    file(GLOB here CONFIGURE_DEPENDS ${folder}/*.cpp ${folder}/*.h)
    list(APPEND found ${here})
  endforeach()
  set(${OUT} ${found} PARENT_SCOPE)
endfunction()

# The QML compiler writes a source for each view, which is mostly headers: bundled they build in a fraction of the time.
function(kavor_bundle_views TARGET)
  get_target_property(sources ${TARGET} SOURCES)
  list(FILTER sources EXCLUDE REGEX "/\\.rcc/qmlcache/")
  set_source_files_properties(${sources} PROPERTIES SKIP_UNITY_BUILD_INCLUSION ON)
  set_target_properties(${TARGET} PROPERTIES UNITY_BUILD ON UNITY_BUILD_BATCH_SIZE 12)
endfunction()
