# The rooms, from the ground up: each may include itself and those before it.
set(RÄUME values platform core controls paper application help history assignment planning fixed
    printing people anniversaries settings statistics search overview fairness exchange shell)
