# SPDX-License-Identifier: LGPL-2.1-or-later
# Installs the built library into a scratch prefix, then configures, builds and
# runs the consumer project against it.
file(REMOVE_RECURSE ${WORK_DIR})
set(prefix ${WORK_DIR}/prefix)
execute_process(COMMAND ${CMAKE_COMMAND} --install ${UTILS_BINARY_DIR} --prefix ${prefix}
                RESULT_VARIABLE rc)
if(rc)
    message(FATAL_ERROR "install failed: ${rc}")
endif()
execute_process(COMMAND ${CMAKE_COMMAND} -S ${CONSUMER_SOURCE_DIR} -B ${WORK_DIR}/build
                        -DCMAKE_PREFIX_PATH=${prefix} -DCMAKE_BUILD_TYPE=Release
                RESULT_VARIABLE rc)
if(rc)
    message(FATAL_ERROR "configure failed: ${rc}")
endif()
execute_process(COMMAND ${CMAKE_COMMAND} --build ${WORK_DIR}/build RESULT_VARIABLE rc)
if(rc)
    message(FATAL_ERROR "build failed: ${rc}")
endif()
execute_process(COMMAND ${WORK_DIR}/build/consumer RESULT_VARIABLE rc OUTPUT_VARIABLE out)
message(STATUS "${out}")
if(rc OR NOT out MATCHES "consumer ok 1 1 ")
    message(FATAL_ERROR "consumer run failed: ${rc}")
endif()
