# Which source file belongs to which link unit. A folder's model files lie on a lower floor than its
# command files and those again below its dialogs; the folder's own sub-folder says which is which.
macro(varnix_sources variable)
  file(GLOB ${variable} CONFIGURE_DEPENDS LIST_DIRECTORIES false RELATIVE ${CMAKE_SOURCE_DIR} ${ARGN})
endmacro()

varnix_sources(VARNIX_CORE_SOURCES support/*.cpp layout/model/*/*.cpp project/model/*.cpp
  project/logic/*.cpp project/check/*.cpp render/*/*.cpp)
varnix_sources(VARNIX_EDIT_SOURCES layout/edit/*.cpp project/edit/*.cpp)
varnix_sources(VARNIX_UI_SOURCES dialogs/*/*.cpp layout/dialog/*.cpp project/dialog/*.cpp app/ui/*.cpp)
