# The products form's logic that needs no widget: checks, codes, saving, suppliers, printers,
# pictures, product lists and recipes.
add_library(products_form_logica STATIC
  ${CMAKE_CURRENT_LIST_DIR}/codigos_producto.cpp ${CMAKE_CURRENT_LIST_DIR}/codigos_producto.h
  ${CMAKE_CURRENT_LIST_DIR}/grabacion_producto.cpp ${CMAKE_CURRENT_LIST_DIR}/grabacion_producto.h
  ${CMAKE_CURRENT_LIST_DIR}/imagen_producto.cpp ${CMAKE_CURRENT_LIST_DIR}/imagen_producto.h
  ${CMAKE_CURRENT_LIST_DIR}/impresoras_producto.cpp ${CMAKE_CURRENT_LIST_DIR}/impresoras_producto.h
  ${CMAKE_CURRENT_LIST_DIR}/lineas_productos.cpp ${CMAKE_CURRENT_LIST_DIR}/lineas_productos.h
  ${CMAKE_CURRENT_LIST_DIR}/listas_productos.cpp ${CMAKE_CURRENT_LIST_DIR}/listas_productos.h
  ${CMAKE_CURRENT_LIST_DIR}/receta.cpp ${CMAKE_CURRENT_LIST_DIR}/receta.h
  ${CMAKE_CURRENT_LIST_DIR}/proveedores_producto.cpp ${CMAKE_CURRENT_LIST_DIR}/proveedores_producto.h
  ${CMAKE_CURRENT_LIST_DIR}/validacion_producto.cpp ${CMAKE_CURRENT_LIST_DIR}/validacion_producto.h)
target_include_directories(products_form_logica PUBLIC ${CMAKE_CURRENT_LIST_DIR})
target_link_libraries(products_form_logica PUBLIC
  productos_options startup catalogue_db presentation Qt6::Gui)
