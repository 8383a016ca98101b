# The tests of the products form's logic: one executable per file.
file(GLOB products_form_logica_tests CONFIGURE_DEPENDS
  ${CMAKE_CURRENT_LIST_DIR}/test_guardado*.cpp
  ${CMAKE_CURRENT_LIST_DIR}/test_proveedores*.cpp
  ${CMAKE_CURRENT_LIST_DIR}/test_impresoras*.cpp
  ${CMAKE_CURRENT_LIST_DIR}/test_imagen*.cpp
  ${CMAKE_CURRENT_LIST_DIR}/test_listas*.cpp)
# The picture and colour on the form match the pattern above but drive the form itself.
list(FILTER products_form_logica_tests EXCLUDE REGEX "/test_imagen_color[^/]*$")
foreach(source ${products_form_logica_tests})
  get_filename_component(name ${source} NAME_WE)
  productos_add_test(products_form_${name} SOURCES ${source} LIBS products_form_logica test_support)
endforeach()
