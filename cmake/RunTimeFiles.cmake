# Copies what programs read at run time beside them, so that a build's bin folder can be used on its own.

# quorvane_run_time_file(SOURCE TARGET): TARGET is a path below the bin folder.
function(quorvane_run_time_file source target)
    set(copy ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/${target})
    add_custom_command(OUTPUT ${copy} DEPENDS ${PROJECT_SOURCE_DIR}/${source}
                       COMMAND ${CMAKE_COMMAND} -E copy ${PROJECT_SOURCE_DIR}/${source} ${copy})
    set(run_time_files ${run_time_files} ${copy} PARENT_SCOPE)
endfunction()

set(run_time_files)
quorvane_run_time_file(resources/lang/en/Quorvane.ini lang/en/Quorvane.ini)
quorvane_run_time_file(resources/lang/zh-CN/Quorvane.ini lang/zh-CN/Quorvane.ini)
quorvane_run_time_file(refhost/samples/machine.json samples/machine.json)
add_custom_target(run_time_files ALL DEPENDS ${run_time_files})
