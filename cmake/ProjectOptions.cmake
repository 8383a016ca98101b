# Flags shared by every target of the project live on this one interface target.
add_library(productos_options INTERFACE)
target_compile_features(productos_options INTERFACE cxx_std_20)
target_compile_options(productos_options INTERFACE -Wall -Wextra)
if(PRODUCTOS_WERROR)
  target_compile_options(productos_options INTERFACE -Werror)
endif()
target_compile_definitions(productos_options INTERFACE
  QT_NO_CAST_FROM_ASCII
  QT_NO_CAST_TO_ASCII
  QT_NO_CAST_FROM_BYTEARRAY
  QT_NO_URL_CAST_FROM_STRING
  QT_NO_NARROWING_CONVERSIONS_IN_CONNECT
  QT_NO_FOREACH
  QT_STRICT_ITERATORS)
if(PRODUCTOS_SANITIZE)
  target_compile_options(productos_options INTERFACE -fsanitize=address,undefined -fno-omit-frame-pointer -fno-sanitize-recover=undefined)
  target_link_options(productos_options INTERFACE -fsanitize=address,undefined)
endif()

# Adds a Qt Test executable and registers it with CTest on the offscreen platform.
function(productos_add_test name)
  cmake_parse_arguments(ARG "" "" "SOURCES;LIBS" ${ARGN})
  add_executable(${name} ${ARG_SOURCES})
  target_link_libraries(${name} PRIVATE productos_options Qt6::Test ${ARG_LIBS})
  add_test(NAME ${name} COMMAND ${name})
  set_tests_properties(${name} PROPERTIES
    ENVIRONMENT "QT_QPA_PLATFORM=offscreen;LC_ALL=C.UTF-8;ASAN_OPTIONS=detect_leaks=0"
    TIMEOUT 300)
endfunction()
