# Links a library with exactly the names of a file visible, one name a line. Hidden
# visibility alone is not enough: instantiated standard templates would still leak.
# `objects` is the library of objects that hold what the names stand for.
function(kydatastructure_export_only target names_file objects)
  if(WIN32)
    kydatastructure_list_by_module_definition(${target} ${names_file} ${objects})
  else()
    kydatastructure_list_by_version_script(${target} ${names_file})
  endif()
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${names_file})
endfunction()

# ELF: the linker compares names as they are written in the file.
function(kydatastructure_list_by_version_script target names_file)
  file(STRINGS ${names_file} names REGEX "^[^#]")
  set(plain "")
  set(members "")
  foreach(name IN LISTS names)
    if(name MATCHES "::")
      string(APPEND members "    \"${name}\";\n")
    else()
      string(APPEND plain "  ${name};\n")
    endif()
  endforeach()
  set(script ${CMAKE_CURRENT_BINARY_DIR}/${target}.map)
  file(CONFIGURE OUTPUT ${script} @ONLY CONTENT
    "{\nglobal:\n@plain@  extern \"C++\" {\n@members@  };\nlocal: *;\n};\n")
  target_link_options(${target} PRIVATE LINKER:--version-script=${script})
  set_property(TARGET ${target} APPEND PROPERTY LINK_DEPENDS ${script})
endfunction()

# Windows: a .def wants the names that the compiler made of them, which it reads from the
# objects.
function(kydatastructure_list_by_module_definition target names_file objects)
  set(definition ${CMAKE_CURRENT_BINARY_DIR}/${target}.def)
  set(writer ${CMAKE_CURRENT_FUNCTION_LIST_DIR}/WriteModuleDefinition.cmake)
  add_custom_command(
    OUTPUT ${definition}
    COMMAND ${CMAKE_COMMAND} -DNM=${CMAKE_NM} -DNAMES=${names_file}
            "-DOBJECTS=$<TARGET_OBJECTS:${objects}>" -DDEFINITION=${definition} -P ${writer}
    DEPENDS ${names_file} ${writer} $<TARGET_OBJECTS:${objects}>
    COMMENT "Writing the names that ${target} exports"
    VERBATIM)
  target_sources(${target} PRIVATE ${definition})
endfunction()
