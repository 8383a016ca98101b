# The products form's logic that needs no widget; the test support comes with the form's fixture.
productos_add_test(products_form_test_logica SOURCES ${CMAKE_CURRENT_LIST_DIR}/test_logica.cpp
                   LIBS products_form_prueba)
