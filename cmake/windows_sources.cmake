# SQLite and libsodium as static libraries, from the sources that scripts/fetch_sources brings: no
# distribution has them for the cross compilers.
set(sources ${PROJECT_SOURCE_DIR}/build/sources)
execute_process(
  COMMAND ${PROJECT_SOURCE_DIR}/scripts/fetch_sources ${sources}
  RESULT_VARIABLE failed)
if(failed)
  message(FATAL_ERROR "The sources of SQLite and libsodium could not be fetched, see above.")
endif()

add_library(sqlite3 STATIC ${sources}/sqlite3/sqlite3.c)
target_include_directories(sqlite3 SYSTEM PUBLIC ${sources}/sqlite3)
# What Debian's SQLite offers to statements and to the host, less what is never loaded.
target_compile_definitions(sqlite3 PRIVATE
  SQLITE_ENABLE_COLUMN_METADATA
  SQLITE_ENABLE_MATH_FUNCTIONS
  SQLITE_LIKE_DOESNT_MATCH_BLOBS
  SQLITE_MAX_VARIABLE_NUMBER=250000
  SQLITE_OMIT_LOAD_EXTENSION
  SQLITE_SOUNDEX
  SQLITE_THREADSAFE=1)
add_library(SQLite::SQLite3 ALIAS sqlite3)

file(GLOB_RECURSE sodium_sources ${sources}/libsodium/src/libsodium/*.c)
add_library(sodium STATIC ${sodium_sources})
target_include_directories(sodium SYSTEM
  PUBLIC ${sources}/libsodium/src/libsodium/include
  PRIVATE ${sources}/libsodium/src/libsodium/include/sodium)
target_compile_definitions(sodium
  PUBLIC SODIUM_STATIC
  PRIVATE CONFIGURED=1 NATIVE_LITTLE_ENDIAN=1)
if(CMAKE_SIZEOF_VOID_P EQUAL 8)
  # What its configure would find; which of the instructions are used is decided when it runs.
  target_compile_definitions(sodium PRIVATE HAVE_CPUID=1 HAVE_MMINTRIN_H=1 HAVE_EMMINTRIN_H=1
    HAVE_TMMINTRIN_H=1 HAVE_SMMINTRIN_H=1 HAVE_AVX2INTRIN_H=1)
endif()

# Warnings in them are their makers' concern.
set_target_properties(sqlite3 sodium PROPERTIES COMPILE_OPTIONS -w)
