# The view controllers and their QML views: one QML module, "Kavor.Screens".
set(SCREEN_FOLDERS
    shell/screens
    account/screens
    orders/screens
    promotions/screens
    activations/screens
    textile/screens
    sellingsheets/screens
    brochures/wizard
    brochures/wizard/configuration
    brochures/wizard/style
    brochures/wizard/products
    brochures/wizard/drinks
    brochures/wizard/prices
    brochures/wizard/prices/profit
    brochures/wizard/prices/recommendation
    brochures/wizard/ordersheet
    brochures/wizard/promotions
    brochures/wizard/pennant
    brochures/wizard/pennantbrand
    brochures/wizard/send
)
kavor_sources(SCREENS ${SCREEN_FOLDERS})
set(SCREEN_VIEWS)
foreach(folder ${SCREEN_FOLDERS})
  file(GLOB views RELATIVE ${CMAKE_CURRENT_SOURCE_DIR} CONFIGURE_DEPENDS ${folder}/*.qml)
  list(APPEND SCREEN_VIEWS ${views})
endforeach()
qt_add_library(kavor_screens STATIC ${SCREENS})
set_target_properties(kavor_screens PROPERTIES AUTOMOC ON QT_QMLCACHEGEN_ARGUMENTS --only-bytecode)
foreach(view ${SCREEN_VIEWS})
  get_filename_component(name ${view} NAME)
  set_source_files_properties(${view} PROPERTIES QT_RESOURCE_ALIAS ${name})
endforeach()
qt_add_qml_module(kavor_screens
  URI Kavor.Screens
  VERSION 1.0
  NO_PLUGIN
  RESOURCE_PREFIX /qt/qml
  OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/qml/Kavor/Screens
  IMPORT_PATH ${CMAKE_BINARY_DIR}/qml
  IMPORTS QtQuick Kavor.Ui Kavor.Kit
  QML_FILES ${SCREEN_VIEWS})
foreach(folder ${SCREEN_FOLDERS})
  # The generated type registration includes headers by their bare names.
  target_include_directories(kavor_screens PRIVATE ${CMAKE_CURRENT_SOURCE_DIR}/${folder})
endforeach()
target_link_libraries(kavor_screens PUBLIC kavor_kit Qt6::Quick Qt6::QuickControls2)
kavor_bundle_views(kavor_screens)
