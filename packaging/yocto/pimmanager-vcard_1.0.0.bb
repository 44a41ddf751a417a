SUMMARY = "Address books for embedded Linux: vCard 2.1, 3.0, 4.0 and jCard"
DESCRIPTION = "Reads the address books that phones and desktop programs write, tells who is calling, finds contacts \
as you type, and compares address books. With the program pimvcard."
SECTION = "libs"

# The owner has not chosen a licence yet, see docs/packaging.md.
LICENSE = "CLOSED"

# The sources stand beside this recipe, two folders up; nothing is fetched. A layer that keeps the recipe apart from them
# sets SRC_URI and S instead.
inherit externalsrc
EXTERNALSRC = "${@os.path.realpath(os.path.join(os.path.dirname(d.getVar('FILE')), '..', '..'))}"
EXTERNALSRC_BUILD = "${WORKDIR}/build"

inherit cmake cmake_qt5 pkgconfig ptest

DEPENDS = "qtbase"

# Linked as they are installed, the libraries never hold the path of the build.
EXTRA_OECMAKE = " \
    -DBUILD_SHARED_LIBS=ON \
    -DPIMVCARD_BUILD_TESTS=OFF \
    -DCMAKE_SKIP_INSTALL_RPATH=ON \
    -DCMAKE_BUILD_WITH_INSTALL_RPATH=ON \
"

PACKAGECONFIG ??= "tools"
PACKAGECONFIG[tools] = "-DPIMVCARD_BUILD_TOOLS=ON,-DPIMVCARD_BUILD_TOOLS=OFF,utf8proc"

# Contacts decodes East Asian character sets with these modules, see docs/embedded.md. It works without them.
RRECOMMENDS:${PN}:append:libc-glibc = " \
    glibc-gconv-big5hkscs \
    glibc-gconv-cp932 \
    glibc-gconv-euc-jp-ms \
    glibc-gconv-gb18030 \
    glibc-gconv-libjis \
    glibc-gconv-libksc \
    glibc-gconv-uhc \
"

# The program apart from the libraries, as a device needs one or the other.
PACKAGE_BEFORE_PN = "${PN}-tools"
FILES:${PN}-tools = "${bindir} ${mandir} ${datadir}/bash-completion ${datadir}/zsh"

# The self-check alone is compiled for the target, not the unit tests. It is built apart, so that what is packaged is the
# same with and without it. It needs googletest, and Qt 5 Gui, which the rest does not.
DEPENDS += "${@bb.utils.contains('PTEST_ENABLED', '1', 'googletest', '', d)}"

do_compile_ptest() {
    cmake -G Ninja -S ${S} -B ${B}/ptest -DCMAKE_TOOLCHAIN_FILE=${WORKDIR}/toolchain.cmake -DCMAKE_BUILD_TYPE=Release \
        ${EXTRA_OECMAKE} -DCMAKE_SKIP_RPATH=ON -DPIMVCARD_BUILD_TOOLS=OFF -DPIMVCARD_BUILD_TESTS=ON
    cmake --build ${B}/ptest --target PimVCardParserTest
}

do_install_ptest() {
    install -d ${D}${PTEST_PATH}
    install -m 0755 ${B}/ptest/technology/PimManager/Lib/Tests/PimVCardParserTest ${D}${PTEST_PATH}
    install -m 0755 ${S}/packaging/yocto/run-ptest ${D}${PTEST_PATH}
}
