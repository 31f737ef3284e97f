# Read by cpack once for each kind of package.
if(CPACK_GENERATOR STREQUAL "DEB")
  set(CPACK_COMPONENTS_ALL program system)
else()
  set(CPACK_COMPONENTS_ALL program portable)
  set(CPACK_COMPONENT_INCLUDE_TOPLEVEL_DIRECTORY ON)
endif()
