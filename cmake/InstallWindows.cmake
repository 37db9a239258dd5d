# The portable folder on Windows holds the libraries too, and CPack makes a .zip of it and, where
# there is NSIS, an installer.

# Qt's libraries, the one plugin that a window needs, and what the compiler links with.
get_target_property(qt_core Qt6::Core LOCATION)
get_filename_component(qt_programs ${qt_core} DIRECTORY)
install(FILES $<TARGET_RUNTIME_DLLS:tensarix> DESTINATION . COMPONENT portable)
install(FILES ${qt_programs}/../plugins/platforms/qwindows.dll
  DESTINATION platforms COMPONENT portable)
if(MINGW)
  foreach(library libstdc++-6 libgcc_s_seh-1 libwinpthread-1)
    execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=${library}.dll
      OUTPUT_VARIABLE found OUTPUT_STRIP_TRAILING_WHITESPACE)
    if(NOT IS_ABSOLUTE "${found}") # on Windows they lie beside the compiler
      get_filename_component(found ${CMAKE_CXX_COMPILER} DIRECTORY)
      set(found ${found}/${library}.dll)
    endif()
    install(FILES ${found} DESTINATION . COMPONENT portable)
  endforeach()
  # The compiler's come with 20 MB of what only a debugger reads.
  install(CODE "file(GLOB libraries \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/*.dll\")
    execute_process(COMMAND ${CMAKE_STRIP} \${libraries} COMMAND_ERROR_IS_FATAL ANY)"
    COMPONENT portable)
else()
  set(CMAKE_INSTALL_SYSTEM_RUNTIME_DESTINATION .)
  set(CMAKE_INSTALL_SYSTEM_RUNTIME_COMPONENT portable)
  include(InstallRequiredSystemLibraries)
endif()

set(TENSARIX_LICENCES "" CACHE PATH "A folder with the licences of the libraries above")
if(TENSARIX_LICENCES)
  install(DIRECTORY ${TENSARIX_LICENCES}/ DESTINATION licences COMPONENT portable)
endif()

find_program(MAKENSIS makensis)
set(CPACK_GENERATOR ZIP)
if(MAKENSIS)
  list(APPEND CPACK_GENERATOR NSIS)
endif()
set(CPACK_MONOLITHIC_INSTALL ON)
set(CPACK_STRIP_FILES ON)
set(CPACK_PACKAGE_NAME Tensarix)
set(CPACK_PACKAGE_VENDOR "The Tensarix developers")
set(CPACK_PACKAGE_INSTALL_DIRECTORY Tensarix)
set(CPACK_PACKAGE_INSTALL_REGISTRY_KEY Tensarix)
set(CPACK_RESOURCE_FILE_LICENSE ${CMAKE_SOURCE_DIR}/LICENSE)
set(CPACK_NSIS_MUI_ICON ${package}/windows/tensarix.ico)
list(PREPEND CMAKE_MODULE_PATH ${package}/windows) # the installer's own script, NSIS.template.in
include(CPack)
