/* Asks a Service Server for as many answers as it gives, and tells the rate, the latency and what
   was lost. One thread and one epoll set, so that it takes less of the machine than any server.

   loadclient ADDRESS PORT CLIENTS MILLISECONDS

   CLIENTS connections are open at any time; each is asked for again as soon as its answer of 96
   bytes is whole and the server has closed, for so many MILLISECONDS and until there are at least
   as many answers as clients. Prints one line of JSON. An answer is lost when it is short or long,
   when the connection fails, or when it is not there after five seconds. */

#include <arpa/inet.h>
#include <errno.h>
#include <netinet/in.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <sys/epoll.h>
#include <sys/socket.h>
#include <time.h>
#include <unistd.h>

enum { answerSize = 96, maxClients = 4096, eventsAtOnce = 256 };

static const double patienceSeconds = 5;

struct Client
{
    int socket; /* -1: none */
    int received;
    double since;
};

static struct sockaddr_in server;
static int events;
static struct Client clients[maxClients];
static int open_clients;
static unsigned long lost;
static float *latencies; /* in microseconds */
static size_t answers;
static size_t room;

static double now(void)
{
    struct timespec time;
    clock_gettime(CLOCK_MONOTONIC, &time);
    return (double)time.tv_sec + (double)time.tv_nsec / 1e9;
}

static void fail(const char *what)
{
    perror(what);
    exit(1);
}

static void finish(struct Client *client)
{
    close(client->socket); /* takes it out of the epoll set, too */
    client->socket = -1;
    --open_clients;
}

static void begin(struct Client *client)
{
    client->socket = socket(AF_INET, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0);
    if (client->socket < 0) {
        fail("socket");
    }
    ++open_clients;
    client->received = 0;
    client->since = now();
    if (connect(client->socket, (const struct sockaddr *)&server, sizeof server) != 0
        && errno != EINPROGRESS) {
        ++lost;
        finish(client);
        return;
    }
    struct epoll_event event = {.events = EPOLLIN, .data.ptr = client};
    if (epoll_ctl(events, EPOLL_CTL_ADD, client->socket, &event) != 0) {
        fail("epoll_ctl");
    }
}

static void remember(double seconds)
{
    if (answers == room) {
        room = room == 0 ? 65536 : room * 2;
        latencies = realloc(latencies, room * sizeof *latencies);
        if (latencies == NULL) {
            fail("realloc");
        }
    }
    latencies[answers++] = (float)(seconds * 1e6);
}

/* Reads what is there. Returns whether the server is done with this client. */
static int serve(struct Client *client)
{
    char buffer[answerSize * 2];
    for (;;) {
        const ssize_t size = read(client->socket, buffer, sizeof buffer);
        if (size < 0 && errno == EAGAIN) {
            return 0;
        }
        if (size > 0) {
            client->received += (int)size;
            continue;
        }
        if (size == 0 && client->received == answerSize) {
            remember(now() - client->since);
        } else {
            ++lost;
        }
        return 1;
    }
}

static int ascending(const void *a, const void *b)
{
    const float left = *(const float *)a;
    const float right = *(const float *)b;
    return (left > right) - (left < right);
}

static double share(double part)
{
    return answers == 0 ? 0 : (double)latencies[(size_t)((double)(answers - 1) * part)];
}

int main(int argc, char *argv[])
{
    if (argc != 5) {
        fprintf(stderr, "usage: loadclient ADDRESS PORT CLIENTS MILLISECONDS\n");
        return 2;
    }
    server.sin_family = AF_INET;
    server.sin_port = htons((unsigned short)atoi(argv[2]));
    const int count = atoi(argv[3]);
    const double seconds = atof(argv[4]) / 1000;
    if (inet_pton(AF_INET, argv[1], &server.sin_addr) != 1 || count < 1 || count > maxClients) {
        fprintf(stderr, "loadclient: no such address, or not 1 to %d clients\n", maxClients);
        return 2;
    }
    events = epoll_create1(EPOLL_CLOEXEC);
    if (events < 0) {
        fail("epoll_create1");
    }

    const double start = now();
    for (int i = 0; i < count; ++i) {
        begin(&clients[i]);
    }
    double current = start;
    double asked = seconds;
    size_t in_time = 0;
    while (open_clients > 0 && current - start < seconds + patienceSeconds) {
        struct epoll_event ready[eventsAtOnce];
        const int ready_count = epoll_wait(events, ready, eventsAtOnce, 100);
        current = now();
        /* Where the machine stands still for a while, longer: until each has had its turn. */
        const int asking = current - start < seconds || answers < (size_t)count;
        for (int i = 0; i < ready_count; ++i) {
            struct Client *const client = ready[i].data.ptr;
            if (serve(client)) {
                finish(client);
                if (asking) {
                    begin(client);
                }
            }
        }
        if (asking) {
            in_time = answers;
            asked = current - start;
        }
    }
    lost += (unsigned long)open_clients;

    qsort(latencies, answers, sizeof *latencies, ascending);
    printf("{\"rate\": %.1f, \"p50\": %.1f, \"p99\": %.1f, \"answers\": %zu, \"lost\": %lu}\n",
           (double)in_time / asked, share(0.5), share(0.99), answers, lost);
    return 0;
}
