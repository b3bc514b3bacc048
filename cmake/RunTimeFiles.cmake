# Copies what programs read at run time beside them, so that a build's bin folder can be used on its own.
set(run_time_files)
function(quorvane_run_time_file source target)
    set(copy ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/${target})
    add_custom_command(OUTPUT ${copy} DEPENDS ${PROJECT_SOURCE_DIR}/${source}
                       COMMAND ${CMAKE_COMMAND} -E copy ${PROJECT_SOURCE_DIR}/${source} ${copy})
    set(run_time_files ${run_time_files} ${copy} PARENT_SCOPE)
endfunction()

foreach(tag en zh-CN)
    if(EXISTS ${PROJECT_SOURCE_DIR}/resources/lang/${tag}/Quorvane.ini)
        quorvane_run_time_file(resources/lang/${tag}/Quorvane.ini lang/${tag}/Quorvane.ini)
    endif()
endforeach()
file(GLOB samples RELATIVE ${PROJECT_SOURCE_DIR}/refhost/samples CONFIGURE_DEPENDS
     ${PROJECT_SOURCE_DIR}/refhost/samples/*.json)
foreach(sample IN LISTS samples)
    quorvane_run_time_file(refhost/samples/${sample} samples/${sample})
endforeach()
add_custom_target(run_time_files ALL DEPENDS ${run_time_files})
