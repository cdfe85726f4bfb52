# SPDX-License-Identifier: MIT
# What CPack cannot express: libraries and headers of several architectures can be installed side by
# side, and a trigger runs ldconfig instead of scripts. CPack runs this on the packages it has made.
foreach(package IN LISTS CPACK_PACKAGE_FILES)
  if(package MATCHES "/lib[^/]*$")
    set(folder ${package}.d)
    execute_process(COMMAND dpkg-deb --raw-extract ${package} ${folder} COMMAND_ERROR_IS_FATAL ANY)
    file(REMOVE ${folder}/DEBIAN/postinst ${folder}/DEBIAN/postrm)
    file(READ ${folder}/DEBIAN/control control)
    string(STRIP "${control}" control)
    file(WRITE ${folder}/DEBIAN/control "${control}\nMulti-Arch: same\n")
    execute_process(COMMAND dpkg-deb --root-owner-group --uniform-compression -Zxz
                            --build ${folder} ${package}
                    OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
    file(REMOVE_RECURSE ${folder})
  endif()
endforeach()
