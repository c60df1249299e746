# `cmake --install build/release --prefix DIR` makes DIR a portable folder: the program, the models
# and what belongs to them side by side, since the program looks for its models in its own folder
# and works there. Nothing in it names another place of its own, so DIR may be moved. The Qt
# libraries are the system's.

# Everything that is installed, and nothing else: what ./run and tools/package build.
add_custom_target(programs)

add_dependencies(programs arbolith-cli swqvl hwqvl)
install(TARGETS arbolith-cli swqvl hwqvl RUNTIME DESTINATION .)
install(FILES docs/man/arbolith-cli.1 DESTINATION man)
if(TARGET arbolith)
  add_dependencies(programs arbolith notepad)
  install(TARGETS arbolith notepad RUNTIME DESTINATION .)
  install(FILES README.md LICENSE CHANGELOG.md DESTINATION .)
  if(EXISTS ${CMAKE_SOURCE_DIR}/docs/open-models.md)
    install(FILES docs/open-models.md DESTINATION docs)
  endif()
  install(DIRECTORY samples DESTINATION .)
  install(DIRECTORY ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/help DESTINATION . PATTERN "*.hh?" EXCLUDE)
  install(FILES ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/qvlhelp.chm DESTINATION . OPTIONAL)
endif()
