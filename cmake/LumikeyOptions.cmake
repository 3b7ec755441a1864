# One INTERFACE target carries the language level, the warnings and Qt's strictness definitions.
option(LUMIKEY_WARNINGS_AS_ERRORS "Treat compiler warnings as errors" ON)
option(LUMIKEY_SANITIZE "Build with AddressSanitizer and UndefinedBehaviorSanitizer" OFF)
option(LUMIKEY_COVERAGE "Count which lines run" OFF)
option(LUMIKEY_FUZZ "Build the fuzz targets as well; wants clang" OFF)

set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

add_library(lumikey_options INTERFACE)
target_compile_features(lumikey_options INTERFACE cxx_std_17)
target_compile_options(
    lumikey_options
    INTERFACE -Wall
              -Wextra
              -Wpedantic
              -Wshadow
              -Wconversion
              -Wno-sign-conversion
              -Wnon-virtual-dtor
              -Woverloaded-virtual
              $<$<BOOL:${LUMIKEY_WARNINGS_AS_ERRORS}>:-Werror>)
target_compile_definitions(
    lumikey_options
    INTERFACE QT_DISABLE_DEPRECATED_BEFORE=0x050F00
              QT_NO_CAST_FROM_BYTEARRAY
              QT_NO_CAST_FROM_ASCII
              QT_NO_CAST_TO_ASCII
              QT_NO_FOREACH
              QT_NO_URL_CAST_FROM_STRING
              QT_STRICT_ITERATORS
              UNICODE
              _UNICODE)

if(LUMIKEY_SANITIZE)
    set(sanitizers -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_compile_options(lumikey_options INTERFACE ${sanitizers})
    target_link_options(lumikey_options INTERFACE ${sanitizers})
endif()

if(LUMIKEY_COVERAGE)
    # Atomic, because the guard and the platform use threads.
    target_compile_options(lumikey_options INTERFACE --coverage -fprofile-update=atomic)
    target_link_options(lumikey_options INTERFACE --coverage)
endif()

if(LUMIKEY_FUZZ)
    # Everything tells the fuzzer where it goes; the targets alone bring its main().
    target_compile_options(lumikey_options INTERFACE -fsanitize=fuzzer-no-link)
endif()
