# A gas: `particles` discs at X, Y with the velocities VX, VY, the radii R and the masses W, moved by dt seconds within a
# box. They bounce off its walls and off each other without loss. What happens at walls and between two discs can be
# followed: wall_hit(i, x, y) and met(i, j) are told of it; met returns 1 if the two are not to bounce.
function move_gas(dt, left, top, right, bottom,    steps, step, i, j) {
    steps = 3
    for (step = 0; step < steps; step++) {
        for (i = 0; i < particles; i++) {
            X[i] += VX[i] * dt / steps
            Y[i] += VY[i] * dt / steps
            if (X[i] < left + R[i]) { X[i] = left + R[i]; if (VX[i] < 0) { VX[i] = -VX[i]; wall_hit(i, left, Y[i]) } }
            if (X[i] > right - R[i]) { X[i] = right - R[i]; if (VX[i] > 0) { VX[i] = -VX[i]; wall_hit(i, right, Y[i]) } }
            if (Y[i] < top + R[i]) { Y[i] = top + R[i]; if (VY[i] < 0) { VY[i] = -VY[i]; wall_hit(i, X[i], top) } }
            if (Y[i] > bottom - R[i]) { Y[i] = bottom - R[i]; if (VY[i] > 0) { VY[i] = -VY[i]; wall_hit(i, X[i], bottom) } }
        }
        for (i = 0; i < particles; i++)
            for (j = 0; j < i; j++) bounce(i, j)
    }
}

function bounce(i, j,    dx, dy, least, distance, speed, push, share) {
    dx = X[i] - X[j]
    least = R[i] + R[j]
    if (dx > least || dx < -least) return
    dy = Y[i] - Y[j]
    distance = sqrt(dx * dx + dy * dy)
    if (distance >= least || distance == 0) return
    dx /= distance
    dy /= distance
    share = W[j] / (W[i] + W[j])
    push = least - distance
    X[i] += dx * push * share; Y[i] += dy * push * share
    X[j] -= dx * push * (1 - share); Y[j] -= dy * push * (1 - share)
    speed = (VX[i] - VX[j]) * dx + (VY[i] - VY[j]) * dy
    if (speed >= 0 || met(i, j, -speed)) return
    VX[i] -= 2 * share * speed * dx; VY[i] -= 2 * share * speed * dy
    VX[j] += 2 * (1 - share) * speed * dx; VY[j] += 2 * (1 - share) * speed * dy
}

# A number with the normal distribution that depends on i alone.
function normal(i) {
    return sqrt(-2 * log(noise(i) + 0.000001)) * cos(2 * pi * noise(i + 1000.5))
}

# Gives the disc i a velocity as in a gas of the temperature `heat` (a measure of it in squares of units per second).
function warm(i, seed, heat) {
    VX[i] = normal(seed + i) * sqrt(heat / W[i])
    VY[i] = normal(seed + 500 + i) * sqrt(heat / W[i])
}
