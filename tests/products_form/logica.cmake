# The products form's logic that needs no widget, and the save's round trip on PostgreSQL (a
# throwaway cluster); the test support comes with the form's fixture.
foreach(name test_logica test_guardado_postgres)
  productos_add_test(products_form_${name} SOURCES ${CMAKE_CURRENT_LIST_DIR}/${name}.cpp
                     LIBS products_form_prueba)
endforeach()
