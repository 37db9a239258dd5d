# Two ways to install:
#   portable  what `cmake --install` does: program, store and guide beside each other in one folder
#             of the user's, so that the data files stay there too; and what Windows' packages hold
#   system    what the Debian package holds: `cmake --build build/release --target package`

if(CMAKE_INSTALL_PREFIX_INITIALIZED_TO_DEFAULT) # /usr/local is no place for a portable folder
  set(CMAKE_INSTALL_PREFIX ${CMAKE_BINARY_DIR}/Tensarix CACHE PATH "The portable folder" FORCE)
endif()

set(package ${CMAKE_SOURCE_DIR}/package)
set(made ${CMAKE_BINARY_DIR}/package)
file(MAKE_DIRECTORY ${made})

set_target_properties(tensarix PROPERTIES INSTALL_RPATH "") # the libraries are the system's
install(TARGETS tensarix DESTINATION . COMPONENT portable)
install(FILES ${section_store} ${CMAKE_SOURCE_DIR}/LICENSE DESTINATION . COMPONENT portable)

# The guide lies beside the program; while it is being built, as a link to docs/.
set(guide_pages ${CMAKE_SOURCE_DIR}/docs/guide.md ${CMAKE_SOURCE_DIR}/docs/calculator.md
  ${CMAKE_SOURCE_DIR}/docs/validation.md)
file(MAKE_DIRECTORY ${CMAKE_BINARY_DIR}/program)
file(CREATE_LINK ${CMAKE_SOURCE_DIR}/docs ${CMAKE_BINARY_DIR}/program/guide SYMBOLIC RESULT failed)
if(failed) # not every user of Windows may make links
  file(COPY ${guide_pages} ${CMAKE_SOURCE_DIR}/docs/pictures
    DESTINATION ${CMAKE_BINARY_DIR}/program/guide)
endif()
install(FILES ${guide_pages} DESTINATION guide COMPONENT portable)
install(DIRECTORY ${CMAKE_SOURCE_DIR}/docs/pictures DESTINATION guide COMPONENT portable)

if(WIN32)
  include(${CMAKE_CURRENT_LIST_DIR}/InstallWindows.cmake)
  return()
endif()

macro(tensarix_system what)
  install(${what} ${ARGN} COMPONENT system EXCLUDE_FROM_ALL)
endmacro()

tensarix_system(TARGETS tensarix DESTINATION lib/tensarix)
tensarix_system(FILES ${section_store} DESTINATION lib/tensarix)
tensarix_system(FILES ${guide_pages} DESTINATION lib/tensarix/guide)
tensarix_system(DIRECTORY ${CMAKE_SOURCE_DIR}/docs/pictures DESTINATION lib/tensarix/guide)
# Relative, so that it holds wherever the whole is put.
file(CREATE_LINK ../lib/tensarix/tensarix ${made}/tensarix SYMBOLIC)
tensarix_system(FILES ${made}/tensarix DESTINATION bin)
tensarix_system(FILES ${package}/tensarix.desktop DESTINATION share/applications)
tensarix_system(FILES ${package}/org.tensarix.tensarix.metainfo.xml DESTINATION share/metainfo)
tensarix_system(FILES ${package}/tensarix.svg DESTINATION share/icons/hicolor/scalable/apps)
tensarix_system(FILES ${package}/tensarix-symbolic.svg
  DESTINATION share/icons/hicolor/symbolic/apps)
tensarix_system(FILES ${package}/copyright DESTINATION share/doc/tensarix)

# Debian wants these two compressed.
find_program(GZIP gzip)
if(GZIP)
  foreach(page changelog tensarix.1)
    add_custom_command(OUTPUT ${made}/${page}.gz
      COMMAND ${GZIP} -9nc ${package}/${page} > ${made}/${page}.gz
      DEPENDS ${package}/${page} VERBATIM)
  endforeach()
  add_custom_target(tensarix_package_pages ALL DEPENDS ${made}/changelog.gz ${made}/tensarix.1.gz)
  tensarix_system(FILES ${made}/changelog.gz DESTINATION share/doc/tensarix)
  tensarix_system(FILES ${made}/tensarix.1.gz DESTINATION share/man/man1)
endif()

set(CPACK_GENERATOR DEB)
set(CPACK_COMPONENTS_ALL system)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_GROUPING ALL_COMPONENTS_IN_ONE)
set(CPACK_PACKAGE_NAME tensarix)
set(CPACK_PACKAGE_CONTACT "Tensarix developers <tensarix@localhost>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "reference book and design checks for structural steel")
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION science)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "speech-dispatcher, speech-dispatcher-espeak-ng") # the voice
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
  "Tensarix shows the dimensions and properties of 1973 rolled and hollow steel
sections, in US units and as SI equivalents, finds sections by what they must
have, and computes allowable beam loads, coefficients of bolt and weld groups
and weights. It has a scientific calculator for lengths in feet and inches,
and can read aloud what is chosen.")
include(CPack)

if(TENSARIX_TESTS AND NOT TENSARIX_SANITIZE)
  add_test(NAME install COMMAND bash ${CMAKE_SOURCE_DIR}/tests/install/InstallTest.sh
    ${CMAKE_SOURCE_DIR} ${CMAKE_BINARY_DIR})
  set_tests_properties(install PROPERTIES LABELS install TIMEOUT 120 SKIP_RETURN_CODE 77)
endif()
