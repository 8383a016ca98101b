# The pieces of the form that the dialogs opened from it draw with too: the control builders of
# the design, the on-screen keyboard and the rules of its keys.
add_library(products_form_piezas STATIC
  ${CMAKE_CURRENT_LIST_DIR}/disenio.cpp ${CMAKE_CURRENT_LIST_DIR}/disenio.h
  ${CMAKE_CURRENT_LIST_DIR}/pantalla_teclado.cpp ${CMAKE_CURRENT_LIST_DIR}/pantalla_teclado.h
  ${CMAKE_CURRENT_LIST_DIR}/reglas_teclas.cpp ${CMAKE_CURRENT_LIST_DIR}/reglas_teclas.h)
target_include_directories(products_form_piezas PUBLIC ${CMAKE_CURRENT_LIST_DIR})
target_link_libraries(products_form_piezas PUBLIC productos_options presentation Qt6::Widgets)
