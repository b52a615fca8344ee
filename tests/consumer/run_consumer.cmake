# SPDX-License-Identifier: LGPL-2.1-or-later
# The package tests, one step per MODE:
#   install    installs the built library into a scratch prefix;
#   cmake      builds and runs the consumer with find_package(Utils);
#   pkgconfig  builds and runs the same consumer with `pkg-config --cflags --libs utils`.
set(prefix ${WORK_DIR}/prefix)

function(run)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE rc OUTPUT_VARIABLE out ERROR_VARIABLE err)
    if(rc)
        message(FATAL_ERROR "failed (${rc}): ${ARGN}\n${out}\n${err}")
    endif()
    set(out "${out}" PARENT_SCOPE)
endfunction()

function(check_run executable)
    run(${CMAKE_COMMAND} -E env LD_LIBRARY_PATH=${prefix}/${LIBDIR} ${executable})
    message(STATUS "${out}")
    if(NOT out MATCHES "consumer ok 1 1 [0-9A-F]+ ${VERSION}\n")
        message(FATAL_ERROR "unexpected output of ${executable}: ${out}")
    endif()
endfunction()

if(MODE STREQUAL "install")
    file(REMOVE_RECURSE ${WORK_DIR})
    run(${CMAKE_COMMAND} --install ${UTILS_BINARY_DIR} --prefix ${prefix})
    foreach(file ${prefix}/share/doc/Utils/LICENSE ${prefix}/${LIBDIR}/pkgconfig/utils.pc
                 ${prefix}/include/utils/version.h)
        if(NOT EXISTS ${file})
            message(FATAL_ERROR "not installed: ${file}")
        endif()
    endforeach()
elseif(MODE STREQUAL "cmake")
    run(${CMAKE_COMMAND} -S ${CONSUMER_SOURCE_DIR} -B ${WORK_DIR}/build
        -DCMAKE_PREFIX_PATH=${prefix} -DCMAKE_BUILD_TYPE=Release)
    run(${CMAKE_COMMAND} --build ${WORK_DIR}/build)
    check_run(${WORK_DIR}/build/consumer)
elseif(MODE STREQUAL "pkgconfig")
    set(ENV{PKG_CONFIG_PATH} ${prefix}/${LIBDIR}/pkgconfig)
    run(pkg-config --modversion utils)
    string(STRIP "${out}" modversion)
    if(NOT modversion STREQUAL VERSION)
        message(FATAL_ERROR "pkg-config --modversion utils gave '${modversion}', not ${VERSION}")
    endif()
    run(pkg-config --cflags --libs utils)
    string(STRIP "${out}" flags)
    separate_arguments(flags UNIX_COMMAND "${flags}")
    file(MAKE_DIRECTORY ${WORK_DIR}/pkgconfig)
    run(${CXX} -std=c++17 -Wall -Wextra -Werror ${CONSUMER_SOURCE_DIR}/main.cpp
        ${CONSUMER_SOURCE_DIR}/embedding.cpp ${CONSUMER_SOURCE_DIR}/telegrams.cpp
        ${CONSUMER_SOURCE_DIR}/livechart.cpp ${flags}
        -o ${WORK_DIR}/pkgconfig/consumer)
    check_run(${WORK_DIR}/pkgconfig/consumer)
else()
    message(FATAL_ERROR "unknown MODE '${MODE}'")
endif()
