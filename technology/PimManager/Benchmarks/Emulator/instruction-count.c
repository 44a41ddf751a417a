/* A plugin for QEMU that counts the instructions of the emulated program and prints "Collected : NUMBER" to standard
   error at its end, as callgrind does. Debian ships no header of the plugin interface, so the part in use is declared
   here. */

#include <inttypes.h>
#include <stddef.h>
#include <stdint.h>
#include <stdio.h>

struct qemu_plugin_tb;
enum qemu_plugin_op
{
    QEMU_PLUGIN_INLINE_ADD_U64
};
void qemu_plugin_register_vcpu_tb_trans_cb( uint64_t id,
                                            void ( *callback )( uint64_t id, struct qemu_plugin_tb* block ) );
void qemu_plugin_register_vcpu_tb_exec_inline( struct qemu_plugin_tb* block, enum qemu_plugin_op operation,
                                               void* counter, uint64_t number );
void qemu_plugin_register_atexit_cb( uint64_t id, void ( *callback )( uint64_t id, void* data ), void* data );
size_t qemu_plugin_tb_n_insns( const struct qemu_plugin_tb* block );

int qemu_plugin_version = 1;

static uint64_t s_instructions = 0;

static void count_block( uint64_t id, struct qemu_plugin_tb* block )
{
    (void)id;
    qemu_plugin_register_vcpu_tb_exec_inline( block, QEMU_PLUGIN_INLINE_ADD_U64, &s_instructions,
                                              qemu_plugin_tb_n_insns( block ) );
}

static void print_count( uint64_t id, void* data )
{
    (void)id;
    (void)data;
    fprintf( stderr, "Collected : %" PRIu64 "\n", s_instructions );
}

int qemu_plugin_install( uint64_t id, const void* info, int count, char** arguments )
{
    (void)info;
    (void)count;
    (void)arguments;
    qemu_plugin_register_vcpu_tb_trans_cb( id, count_block );
    qemu_plugin_register_atexit_cb( id, print_count, NULL );
    return 0;
}
