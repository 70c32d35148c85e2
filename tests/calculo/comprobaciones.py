"""What the scripts that check the command as a user runs it share: the failures they gather,
each noted as it comes, to be told all together at the end."""

fallos = []


def comprueba(condicion, mensaje):
    """Notes the message as a failure where the condition does not hold; gives the condition."""
    if not condicion:
        fallos.append(mensaje)
    return condicion
