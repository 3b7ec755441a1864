/* The least a Service Server can be: accepts, writes 96 bytes, closes. The yardstick for the rate
   and the latency of the program's own.

   bareserver ADDRESS PORT: serves until it is ended. */

#include <arpa/inet.h>
#include <netinet/in.h>
#include <signal.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <sys/socket.h>
#include <unistd.h>

enum { answerSize = 96 };

int main(int argc, char *argv[])
{
    if (argc != 3) {
        fprintf(stderr, "usage: bareserver ADDRESS PORT\n");
        return 2;
    }
    signal(SIGPIPE, SIG_IGN);

    struct sockaddr_in address = {0};
    address.sin_family = AF_INET;
    address.sin_port = htons((unsigned short)atoi(argv[2]));
    const int one = 1;
    const int listener = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    if (inet_pton(AF_INET, argv[1], &address.sin_addr) != 1 || listener < 0
        || setsockopt(listener, SOL_SOCKET, SO_REUSEADDR, &one, sizeof one) != 0
        || bind(listener, (const struct sockaddr *)&address, sizeof address) != 0
        || listen(listener, SOMAXCONN) != 0) {
        perror("bareserver");
        return 1;
    }

    char answer[answerSize];
    memset(answer, 'a', sizeof answer);
    for (;;) {
        const int client = accept(listener, NULL, NULL);
        if (client < 0) {
            continue; /* gone before it was taken */
        }
        if (write(client, answer, sizeof answer) != (ssize_t)sizeof answer) {
            perror("bareserver: write");
        }
        close(client);
    }
}
